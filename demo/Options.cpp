// SPDX-License-Identifier: MIT
#include "Options.h"

#include "OptionTable.h"

#include <QDir>
#include <QFileInfo>

namespace {

QSize readSize(const QString &text)
{
    const QStringList sides = text.split(QLatin1Char('x'));
    return QSize(sides.first().toInt(), sides.last().toInt());
}

QString findTranslation(const QString &language)
{
    const QString path =
        QString::fromLatin1("%1/HMIDevice_%2.qm").arg(QLatin1String(HMI_TRANSLATIONS), language);
    if (!QFileInfo(path).isFile())
        complain(
            QString::fromLatin1("--language: this build has no translation \"%1\"").arg(language));
    return path;
}

QString makeFolder(const QString &option, const QString &path)
{
    if (!QDir().mkpath(path) || !QFileInfo(path).isWritable())
        complain(QString::fromLatin1("--%1: cannot write pictures into \"%2\"").arg(option, path));
    return QDir(path).absolutePath();
}

} // namespace

Options readOptions(const QStringList &arguments)
{
    const QMap<QString, QString> values = readArguments(arguments);
    const QLatin1String language("language");
    const QLatin1String script("script");
    const QLatin1String gallery("gallery");

    Options options;
    options.type = values.value(QLatin1String("type")).toInt();
    options.size = readSize(values.value(QLatin1String("size")));
    options.rotation = values.value(QLatin1String("rotate")).toInt();
    if (values.contains(language))
        options.translation = findTranslation(values.value(language));
    if (values.contains(script))
        options.pictureFolder = makeFolder(script, values.value(script));
    if (values.contains(gallery))
        options.galleryFolder = makeFolder(gallery, values.value(gallery));
    return options;
}
