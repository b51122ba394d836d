// SPDX-License-Identifier: MIT
#ifndef GALLERYFOLDER_H
#define GALLERYFOLDER_H

#include <QByteArray>
#include <QDir>

class QImage;

// The folder that a gallery is in. What stands there and was not made for a gallery stays as it is.
class GalleryFolder
{
public:
    explicit GalleryFolder(const QString &path);

    // Each of these returns an empty text, or why it is not done.

    // Takes an earlier gallery away.
    QString clear();

    QString addPicture(const QString &name, const QImage &picture);
    QString addPage(const QByteArray &page);

private:
    QDir m_folder;
};

#endif
