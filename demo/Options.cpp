// SPDX-License-Identifier: MIT
#include "Options.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <cstdio>
#include <cstdlib>

static const int freeSizeType = 10;
static const int lastType = 21;
static const QSize defaultFreeSize(1024, 600);
static const QSize smallestSize(320, 240);
static const QSize largestSize(4096, 4096);

static void fail(const QString &complaint)
{
    std::fprintf(stderr, "hmi-demo: %s\n", qPrintable(complaint));
    std::exit(2);
}

static int readType(const QString &text)
{
    bool isNumber = false;
    const int type = text.toInt(&isNumber);
    if (!isNumber || type < 1 || type > lastType)
        fail(QString("--type must be 1 to %1, not \"%2\"").arg(lastType).arg(text));
    return type;
}

static QSize readSize(const QString &text, int type)
{
    if (type != freeSizeType)
        fail(QString("--size needs --type %1; every other panel has its own size")
                 .arg(freeSizeType));
    const QRegularExpression form("^([0-9]{1,5})x([0-9]{1,5})$");
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        fail(QString("--size must be WIDTHxHEIGHT, such as 1024x600, not \"%1\"").arg(text));
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    if (size.expandedTo(smallestSize) != size || size.boundedTo(largestSize) != size)
        fail(QString("--size must lie between 320x240 and 4096x4096, not \"%1\"").arg(text));
    return size;
}

static int readRotation(const QString &text)
{
    bool isNumber = false;
    const int degrees = text.toInt(&isNumber);
    if (!isNumber || degrees < 0 || degrees > 270 || degrees % 90 != 0)
        fail(QString("--rotate must be 0, 90, 180 or 270, not \"%1\"").arg(text));
    return degrees;
}

static QString findTranslation(const QString &language)
{
    const QString path = QString(HMI_TRANSLATIONS "/HMIDevice_%1.qm").arg(language);
    if (!QFileInfo(path).isFile())
        fail(QString("--language: there is no translation \"%1\"; try zh_CN").arg(language));
    return path;
}

static QString makeFolder(const QString &path)
{
    if (path.isEmpty() || !QDir().mkpath(path) || !QFileInfo(path).isWritable())
        fail(QString("--script: cannot write pictures into \"%1\"").arg(path));
    return QDir(path).absolutePath();
}

Options readOptions()
{
    const QCommandLineOption help({ "h", "help" }, "Tell the options.");
    const QCommandLineOption type("type", "Panel model, 1 to 21 (8 if not given).", "N");
    const QCommandLineOption size("size", "Screen size of the free-size model 10.", "WxH");
    const QCommandLineOption rotate("rotate", "Screen rotation: 0, 90, 180 or 270.", "DEG");
    const QCommandLineOption language("language", "Language of the keypads, such as zh_CN.",
                                      "NAME");
    const QCommandLineOption script(
        "script", "Work the panel by itself and leave a picture of every step in DIR.", "DIR");

    QCommandLineParser parser;
    parser.setApplicationDescription("A machine-tool panel to try every keypad of HMIDevice on.");
    parser.addOptions({ help, type, size, rotate, language, script });
    if (!parser.parse(QCoreApplication::arguments()))
        fail(parser.errorText());
    if (parser.isSet(help))
        parser.showHelp();
    if (!parser.positionalArguments().isEmpty())
        fail(QString("unexpected argument \"%1\"").arg(parser.positionalArguments().first()));

    Options options;
    if (parser.isSet(type))
        options.type = readType(parser.value(type));
    options.size =
        parser.isSet(size) ? readSize(parser.value(size), options.type) : defaultFreeSize;
    if (parser.isSet(rotate))
        options.rotation = readRotation(parser.value(rotate));
    if (parser.isSet(language))
        options.translation = findTranslation(parser.value(language));
    if (parser.isSet(script))
        options.pictureFolder = makeFolder(parser.value(script));
    return options;
}
