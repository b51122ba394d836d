// SPDX-License-Identifier: MIT
#include "GalleryFolder.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QImageWriter>
#include <QSaveFile>

namespace {

// Every picture and the page say within what made them.
const QLatin1String pictureMarkName("Software");
const QLatin1String mark("hmi-demo --gallery");
const QLatin1String pageName("index.html");

bool isOwnPicture(const QString &path)
{
    return QImageReader(path).text(pictureMarkName) == mark;
}

bool isOwnPage(const QString &path)
{
    QFile page(path);
    return page.open(QIODevice::ReadOnly)
        && page.read(1000).contains("content=\"hmi-demo --gallery\"");
}

QString notOwn(const QString &path)
{
    return QString::fromLatin1("\"%1\" is there and is not of a gallery").arg(path);
}

QString write(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return QString();
    return QString::fromLatin1("cannot write \"%1\"").arg(path);
}

} // namespace

GalleryFolder::GalleryFolder(const QString &path)
    : m_folder(path)
{
}

QString GalleryFolder::clear()
{
    const QString page = m_folder.filePath(pageName);
    if (QFile::exists(page) && !isOwnPage(page))
        return notOwn(page);
    QFile::remove(page);
    const QStringList names = m_folder.entryList({ QLatin1String("*.png") }, QDir::Files);
    for (const QString &name : names) {
        if (isOwnPicture(m_folder.filePath(name)))
            m_folder.remove(name);
    }
    return QString();
}

QString GalleryFolder::addPicture(const QString &name, const QImage &picture)
{
    const QString path = m_folder.filePath(name);
    if (QFile::exists(path))
        return notOwn(path);
    QBuffer buffer; // what cannot be written is told once, not by libpng too
    QImageWriter writer(&buffer, "png");
    writer.setText(pictureMarkName, mark);
    writer.write(picture);
    return write(path, buffer.data());
}

QString GalleryFolder::addPage(const QByteArray &page)
{
    return write(m_folder.filePath(pageName), page);
}
