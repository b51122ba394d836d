// SPDX-License-Identifier: MIT
#include "Gallery.h"

#include "FacePainter.h"
#include "Fonts.h"
#include "GalleryFolder.h"
#include "GalleryPage.h"
#include "GalleryTables.h"
#include "PlacementPicture.h"
#include "SimulatorPicture.h"

#include <QApplication>
#include <QFileInfo>

#include <cstdio>

namespace {

const struct
{
    const char *name, *title;
    int type;
} simulatorPlates[] = { { "simulator", "The panel simulator", 8 },
                        { "simulator-type13", "The panel simulator with type 13", 13 } };

class Artist
{
public:
    explicit Artist(const QString &folder)
        : m_folder(folder)
    {
    }

    // Each returns an empty text, or a complaint.
    QString drawAll();

    int pictures() const { return m_pictures; }

private:
    void findSources();
    void leaveOut(const QString &what);
    QString drawExhibit(const KeypadKind &keypad, const Face &face, bool upright);
    void drawSizes(Exhibit *exhibit, const Look &look, const Language &language);
    QString save(Exhibit *exhibit);
    QString save(Picture *picture);
    QString drawPlates();
    QString addPlate(const char *name, const char *title, const QImage &image);

    GalleryFolder m_folder;
    FacePainter m_painter;
    bool m_hasDictionary = false;
    QVector<Language> m_languages;
    QStringList m_notes;
    QVector<Exhibit> m_exhibits;
    QVector<Plate> m_plates;
    int m_pictures = 0;
};

QString Artist::drawAll()
{
    const QString obstacle = m_folder.clear();
    if (!obstacle.isEmpty())
        return obstacle;
    findSources();
    for (bool upright : { false, true }) {
        for (const KeypadKind &keypad : galleryKeypads()) {
            for (const Face &face : keypad.faces) {
                const QString complaint = drawExhibit(keypad, face, upright);
                if (!complaint.isEmpty())
                    return complaint;
            }
        }
    }
    const QString complaint = drawPlates();
    return complaint.isEmpty() ? m_folder.addPage(galleryPage(m_exhibits, m_plates, m_notes))
                               : complaint;
}

void Artist::findSources()
{
    const QDir program(QCoreApplication::applicationDirPath());
    m_hasDictionary = QFileInfo(program.filePath(QLatin1String("data.db"))).isFile();
    if (!m_hasDictionary)
        leaveOut(QLatin1String("No pinyin dictionary beside the demo: Chinese candidates are left "
                               "out"));
    for (const Language &language : galleryLanguages()) {
        if (m_painter.setLanguage(language))
            m_languages.append(language);
        else
            leaveOut(QString::fromUtf8("No translation for %1 beside the demo: it is left out")
                         .arg(QString::fromUtf8(language.title)));
    }
}

void Artist::leaveOut(const QString &what)
{
    std::printf("%s\n", what.toUtf8().constData());
    m_notes.append(what + QLatin1Char('.'));
}

QString Artist::drawExhibit(const KeypadKind &keypad, const Face &face, bool upright)
{
    if (face.isChinese && !m_hasDictionary)
        return QString();
    const QVector<Language> languages = m_languages;
    Exhibit exhibit = { &keypad, &face, upright, {} };
    for (const Look &look : galleryLooks()) {
        for (const Language &language : languages)
            drawSizes(&exhibit, look, language);
    }
    const QString complaint = save(&exhibit);
    m_exhibits.append(exhibit);
    return complaint;
}

// A picture that is the same in several languages is kept once.
void Artist::drawSizes(Exhibit *exhibit, const Look &look, const Language &language)
{
    m_painter.setLook(look);
    m_painter.setLanguage(language);
    const QVector<QSize> sizes = gallerySizes(exhibit->upright);
    for (const QSize &size : sizes) {
        const QImage image = m_painter.draw(*exhibit->keypad, *exhibit->face, size);
        bool isKnown = false;
        for (Picture &picture : exhibit->pictures) {
            if (picture.look.type == look.type && picture.image == image) {
                picture.languages.append(language);
                isKnown = true;
            }
        }
        if (!isKnown)
            exhibit->pictures.append({ QString(), image.size(), image, look, { language } });
    }
}

QString Artist::save(Exhibit *exhibit)
{
    for (Picture &picture : exhibit->pictures) {
        picture.file =
            QString::fromLatin1("%1-%2-%3x%4-%5-%6.png")
                .arg(QLatin1String(exhibit->keypad->name), QLatin1String(exhibit->face->name))
                .arg(picture.size.width())
                .arg(picture.size.height())
                .arg(QLatin1String(picture.look.name),
                     QLatin1String(picture.languages.first().name));
        const QString complaint = save(&picture);
        if (!complaint.isEmpty())
            return complaint;
    }
    return QString();
}

QString Artist::save(Picture *picture)
{
    ++m_pictures;
    const QString complaint = m_folder.addPicture(picture->file, picture->image);
    picture->image = QImage(); // all together would take hundreds of megabytes
    return complaint;
}

QString Artist::drawPlates()
{
    m_painter.setLook(galleryLooks().first());
    m_painter.setLanguage(galleryLanguages().first());
    QString complaint =
        addPlate("gcode-placement", "Where the G-code keypad lies", placementPicture());
    for (const auto &plate : simulatorPlates) {
        if (complaint.isEmpty())
            complaint = addPlate(plate.name, plate.title, simulatorPicture(plate.type));
    }
    return complaint;
}

QString Artist::addPlate(const char *name, const char *title, const QImage &image)
{
    if (image.isNull())
        return QString::fromLatin1("no picture came for \"%1\"").arg(QLatin1String(title));
    const QString file = QLatin1String(name) + QLatin1String(".png");
    m_plates.append({ name, title, { file, image.size(), image, {}, {} } });
    return save(&m_plates.last().picture);
}

} // namespace

int drawGallery(int argc, char *argv[], const QString &folder)
{
    // The same pictures whether or not there is a display, and no windows that come and go on one.
    // Where Qt was built without this platform, the one that is there must do.
    qputenv("QT_QPA_PLATFORM", "offscreen;" + qgetenv("QT_QPA_PLATFORM"));
    QApplication application(argc, argv);
    QApplication::setCursorFlashTime(0);
    chooseFonts();

    Artist artist(folder);
    const QString complaint = artist.drawAll();
    if (!complaint.isEmpty()) {
        std::fprintf(stderr, "hmi-demo: %s\n", qPrintable(complaint));
        return 1;
    }
    std::printf("%d pictures in %s\n", artist.pictures(), qPrintable(folder));
    return 0;
}
