// SPDX-License-Identifier: MIT
#include "GalleryFolder.h"

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

QString notWritten(const QString &path, const QString &reason)
{
    return QString::fromLatin1("cannot write \"%1\": %2").arg(path, reason);
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
    QImageWriter writer(path, "png");
    writer.setText(pictureMarkName, mark);
    return writer.write(picture) ? QString() : notWritten(path, writer.errorString());
}

QString GalleryFolder::addPage(const QByteArray &page)
{
    const QString path = m_folder.filePath(pageName);
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(page) != page.size() || !file.commit())
        return notWritten(path, file.errorString());
    return QString();
}
