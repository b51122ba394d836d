// SPDX-License-Identifier: MIT
#include "GalleryPage.h"

#include <QFile>
#include <QFont>
#include <QFontInfo>
#include <QXmlStreamWriter>

namespace {

const struct
{
    const char *id, *label;
} scales[] = { { "half", "half size" }, { "full", "true size" } };

typedef QVector<Exhibit> Exhibits;

QString tag(const char *name)
{
    return QLatin1String(name);
}

const struct Section
{
    bool upright;
    const char *id, *title;
} sections[] = { { false, "level", "Screens" }, { true, "upright", "Screens turned upright" } };

QString keypadId(const Section &section, const KeypadKind &keypad)
{
    return QString::fromLatin1("%1-%2").arg(QLatin1String(section.id), QLatin1String(keypad.name));
}

QString faceName(const Exhibit &exhibit)
{
    return QLatin1String(exhibit.keypad->name) + QLatin1Char('-')
        + QLatin1String(exhibit.face->name);
}

QString faceId(const Exhibit &exhibit)
{
    const Section &section = sections[exhibit.upright ? 1 : 0];
    return QString::fromLatin1("%1-%2").arg(QLatin1String(section.id), faceName(exhibit));
}

Exhibits select(const Exhibits &exhibits, const Section &section, const KeypadKind &keypad)
{
    Exhibits selected;
    for (const Exhibit &exhibit : exhibits) {
        if (exhibit.upright == section.upright && exhibit.keypad == &keypad)
            selected.append(exhibit);
    }
    return selected;
}

QString names(const QVector<Language> &languages)
{
    QStringList all;
    for (const Language &language : languages)
        all << QLatin1String(language.name);
    return all.join(QLatin1Char(' '));
}

QString titles(const QVector<Language> &languages)
{
    QStringList all;
    for (const Language &language : languages)
        all << QString::fromUtf8(language.title);
    return all.join(QLatin1String(", "));
}

QString rowTitle(const Picture &picture)
{
    return QString::fromLatin1("%1: %2").arg(QLatin1String(picture.look.title),
                                             titles(picture.languages));
}

QString sizeTitle(const QSize &size)
{
    return QString::fromUtf8("%1 × %2").arg(size.width()).arg(size.height());
}

class Page
{
public:
    explicit Page(QByteArray *bytes)
        : m_xml(bytes)
    {
    }

    void write(const Exhibits &exhibits, const QVector<Plate> &plates, const QStringList &notes);

private:
    void writeHead();
    void writeIntroduction(const Exhibits &exhibits, int plates, const QStringList &notes);
    void writeScales();
    void writeContents(const Exhibits &exhibits, const QVector<Plate> &plates);
    void writeExhibit(const Exhibit &exhibit);
    void writeRowTitle(const Picture &picture);
    void writeFigure(const Exhibit &exhibit, const Picture &picture);
    void writeImage(const Picture &picture, const QString &text);
    void writeLinkIn(const char *element, const QString &id, const QString &text);
    void writeHeading(const char *level, const QString &id, const QString &text);

    QXmlStreamWriter m_xml;
};

void Page::write(const Exhibits &exhibits, const QVector<Plate> &plates, const QStringList &notes)
{
    m_xml.writeDTD(tag("<!DOCTYPE html>\n"));
    m_xml.writeStartElement(tag("html"));
    m_xml.writeAttribute(tag("lang"), tag("en"));
    writeHead();
    m_xml.writeStartElement(tag("body"));
    writeIntroduction(exhibits, plates.size(), notes);
    writeContents(exhibits, plates);
    writeScales();
    m_xml.writeStartElement(tag("main"));
    for (const Section &section : sections) {
        writeHeading("h2", tag(section.id), tag(section.title));
        for (const KeypadKind &keypad : galleryKeypads()) {
            writeHeading("h3", keypadId(section, keypad), tag(keypad.title));
            const Exhibits selected = select(exhibits, section, keypad);
            for (const Exhibit &exhibit : selected)
                writeExhibit(exhibit);
        }
    }
    for (const Plate &plate : plates) {
        writeHeading("h2", tag(plate.id), tag(plate.title));
        m_xml.writeStartElement(tag("figure"));
        writeImage(plate.picture, tag(plate.title));
        m_xml.writeEndElement();
    }
    m_xml.writeEndDocument();
}

void Page::writeHead()
{
    m_xml.writeStartElement(tag("head"));
    m_xml.writeEmptyElement(tag("meta"));
    m_xml.writeAttribute(tag("charset"), tag("utf-8"));
    m_xml.writeEmptyElement(tag("meta"));
    m_xml.writeAttribute(tag("name"), tag("generator"));
    m_xml.writeAttribute(tag("content"), tag("hmi-demo --gallery"));
    m_xml.writeEmptyElement(tag("meta"));
    m_xml.writeAttribute(tag("name"), tag("viewport"));
    m_xml.writeAttribute(tag("content"), tag("width=device-width"));
    m_xml.writeTextElement(tag("title"), tag("The keypads of HMIDevice"));
    QFile sheet(tag(":/gallery.css"));
    sheet.open(QIODevice::ReadOnly);
    m_xml.writeTextElement(tag("style"), QString::fromUtf8(sheet.readAll()));
    m_xml.writeEndElement();
}

void Page::writeIntroduction(const Exhibits &exhibits, int plates, const QStringList &notes)
{
    int count = plates;
    for (const Exhibit &exhibit : exhibits)
        count += exhibit.pictures.size();
    m_xml.writeTextElement(tag("h1"), tag("The keypads of HMIDevice"));
    m_xml.writeTextElement(
        tag("p"),
        QString::fromLatin1(
            "Every keypad in every mode on every size of screen: %1 pictures. A click on one shows "
            "it alone. Where a keypad looks the same in several languages, it stands here once. "
            "Drawn with Qt %2; the keypads ask for the font simsun and were given %3.")
            .arg(count)
            .arg(QLatin1String(qVersion()), QFontInfo(QFont(tag("simsun"))).family()));
    for (const QString &note : notes) {
        m_xml.writeStartElement(tag("p"));
        m_xml.writeAttribute(tag("class"), tag("note"));
        m_xml.writeCharacters(note);
        m_xml.writeEndElement();
    }
}

// Chosen without a script: the style sheet looks which one is checked.
void Page::writeScales()
{
    for (const auto &scale : scales) {
        m_xml.writeEmptyElement(tag("input"));
        m_xml.writeAttribute(tag("type"), tag("radio"));
        m_xml.writeAttribute(tag("name"), tag("scale"));
        m_xml.writeAttribute(tag("id"), tag(scale.id));
        if (scale.id == scales[0].id)
            m_xml.writeAttribute(tag("checked"), tag("checked"));
        m_xml.writeStartElement(tag("label"));
        m_xml.writeAttribute(tag("for"), tag(scale.id));
        m_xml.writeCharacters(tag(scale.label));
        m_xml.writeEndElement();
    }
}

void Page::writeContents(const Exhibits &exhibits, const QVector<Plate> &plates)
{
    m_xml.writeStartElement(tag("nav"));
    m_xml.writeAttribute(tag("aria-label"), tag("Contents"));
    for (const Section &section : sections) {
        writeLinkIn("h2", tag(section.id), tag(section.title));
        m_xml.writeStartElement(tag("div"));
        for (const KeypadKind &keypad : galleryKeypads()) {
            m_xml.writeStartElement(tag("section"));
            writeLinkIn("h3", keypadId(section, keypad), tag(keypad.title));
            m_xml.writeStartElement(tag("ul"));
            const Exhibits selected = select(exhibits, section, keypad);
            for (const Exhibit &exhibit : selected)
                writeLinkIn("li", faceId(exhibit), tag(exhibit.face->title));
            m_xml.writeEndElement();
            m_xml.writeEndElement();
        }
        m_xml.writeEndElement();
    }
    for (const Plate &plate : plates)
        writeLinkIn("h2", tag(plate.id), tag(plate.title));
    m_xml.writeEndElement();
}

void Page::writeExhibit(const Exhibit &exhibit)
{
    writeHeading("h4", faceId(exhibit), QLatin1String(exhibit.face->title));
    QString row;
    for (const Picture &picture : exhibit.pictures) {
        if (row != rowTitle(picture)) {
            if (!row.isEmpty())
                m_xml.writeEndElement();
            row = rowTitle(picture);
            writeRowTitle(picture);
            m_xml.writeStartElement(tag("div"));
        }
        writeFigure(exhibit, picture);
    }
    if (!row.isEmpty())
        m_xml.writeEndElement();
}

void Page::writeRowTitle(const Picture &picture)
{
    m_xml.writeStartElement(tag("h5"));
    m_xml.writeCharacters(tag(picture.look.title));
    for (const Language &language : picture.languages) {
        m_xml.writeCharacters(tag(", "));
        m_xml.writeStartElement(tag("span"));
        m_xml.writeAttribute(tag("lang"),
                             tag(language.name).replace(QLatin1Char('_'), QLatin1Char('-')));
        m_xml.writeCharacters(QString::fromUtf8(language.title));
        m_xml.writeEndElement();
    }
    m_xml.writeEndElement();
}

void Page::writeFigure(const Exhibit &exhibit, const Picture &picture)
{
    const QSize size = picture.size;
    m_xml.writeStartElement(tag("figure"));
    m_xml.writeAttribute(tag("data-face"), faceName(exhibit));
    m_xml.writeAttribute(tag("data-look"), QLatin1String(picture.look.name));
    m_xml.writeAttribute(tag("data-languages"), names(picture.languages));
    writeImage(picture,
               QString::fromUtf8("%1, %2, %3, %4")
                   .arg(tag(exhibit.keypad->title), tag(exhibit.face->title), sizeTitle(size),
                        rowTitle(picture)));
    m_xml.writeTextElement(tag("figcaption"), sizeTitle(size));
    m_xml.writeEndElement();
}

void Page::writeImage(const Picture &picture, const QString &text)
{
    const QSize size = picture.size;
    m_xml.writeStartElement(tag("a"));
    m_xml.writeAttribute(tag("href"), picture.file);
    m_xml.writeEmptyElement(tag("img"));
    m_xml.writeAttribute(tag("src"), picture.file);
    m_xml.writeAttribute(tag("width"), QString::number(size.width()));
    m_xml.writeAttribute(tag("height"), QString::number(size.height()));
    m_xml.writeAttribute(tag("style"), QString::fromLatin1("--width: %1px").arg(size.width()));
    m_xml.writeAttribute(tag("loading"), tag("lazy"));
    m_xml.writeAttribute(tag("alt"), text);
    m_xml.writeEndElement();
}

void Page::writeLinkIn(const char *element, const QString &id, const QString &text)
{
    m_xml.writeStartElement(tag(element));
    m_xml.writeStartElement(tag("a"));
    m_xml.writeAttribute(tag("href"), QLatin1Char('#') + id);
    m_xml.writeCharacters(text);
    m_xml.writeEndElement();
    m_xml.writeEndElement();
}

void Page::writeHeading(const char *level, const QString &id, const QString &text)
{
    m_xml.writeStartElement(tag(level));
    m_xml.writeAttribute(tag("id"), id);
    m_xml.writeCharacters(text);
    m_xml.writeEndElement();
}

} // namespace

QByteArray galleryPage(const QVector<Exhibit> &exhibits, const QVector<Plate> &plates,
                       const QStringList &notes)
{
    QByteArray bytes;
    Page(&bytes).write(exhibits, plates, notes);
    return bytes;
}
