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

    // Takes an earlier gallery away.
    void clear();

    // Each returns an empty text, or why the file is not there.
    QString addPicture(const QString &name, const QImage &picture);
    QString addPage(const QByteArray &page);

private:
    QDir m_folder;
};

#endif
