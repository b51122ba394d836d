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

QString checkLanguage(const QString &language)
{
    if (!language.isEmpty() && findTranslation(language).isEmpty())
        complain(
            QString::fromLatin1("--language: this build has no translation \"%1\"").arg(language));
    return language;
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
    const QLatin1String script("script");
    const QLatin1String gallery("gallery");

    Options options;
    options.panel.type = values.value(QLatin1String("type")).toInt();
    options.panel.size = readSize(values.value(QLatin1String("size")));
    options.panel.rotation = values.value(QLatin1String("rotate")).toInt();
    options.panel.language = checkLanguage(values.value(QLatin1String("language")));
    options.panel.style = values.value(QLatin1String("scheme")) == QLatin1String("light")
        ? Style::Light
        : Style::Dark;
    options.panel.frame = values.contains(QLatin1String("frame"));
    options.screenAlone = values.contains(QLatin1String("panel"));
    if (values.contains(script))
        options.pictureFolder = makeFolder(script, values.value(script));
    if (values.contains(gallery))
        options.galleryFolder = makeFolder(gallery, values.value(gallery));
    return options;
}
