// SPDX-License-Identifier: MIT
#include "GalleryTables.h"
#include "support/Checked.h"
#include "support/Text.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QProcessEnvironment>
#include <QSet>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QtTest>

// The gallery shows every row of its tables, and its page shows what is in the folder.

namespace {

const int mostMilliseconds = 250000;

struct Run
{
    int status;
    QString output, complaint;
};

// A copy of the program finds the library only where it is told to look.
QProcessEnvironment surroundings()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u("LD_LIBRARY_PATH"), u(HMI_LIBRARY_FOLDER));
    return environment;
}

Run draw(const QString &folder, const QString &program = u(HMI_DEMO))
{
    QProcess process;
    process.setProcessEnvironment(surroundings());
    process.start(program, { u("--gallery"), folder });
    const bool ended = process.waitForFinished(mostMilliseconds);
    return { ended ? process.exitCode() : -1, QString::fromUtf8(process.readAllStandardOutput()),
             QString::fromUtf8(process.readAllStandardError()) };
}

// A picture as the page tells of it.
struct Figure
{
    QString file, link, alt, face, look;
    QStringList languages;
    QSize size;
};

QString value(const QXmlStreamReader &xml, const char *attribute)
{
    return xml.attributes().value(QLatin1String(attribute)).toString();
}

QList<Figure> figuresOf(const QString &folder)
{
    QList<Figure> figures;
    QFile page(folder + u("/index.html"));
    page.open(QIODevice::ReadOnly);
    QXmlStreamReader xml(&page);
    QString link;
    Figure figure;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u("figure")) {
            figure.face = value(xml, "data-face");
            figure.look = value(xml, "data-look");
            figure.languages = value(xml, "data-languages").split(QLatin1Char(' '));
        } else if (xml.name() == u("a")) {
            figure.link = value(xml, "href");
        } else if (xml.name() == u("img")) {
            figure.file = value(xml, "src");
            figure.alt = value(xml, "alt");
            figure.size = QSize(value(xml, "width").toInt(), value(xml, "height").toInt());
            figures.append(figure);
        }
    }
    return xml.hasError() ? QList<Figure>() : figures;
}

QString subject(const QString &face, const QString &look, const QString &language,
                const QSize &size)
{
    return u("%1 %2 %3 %4x%5").arg(face, look, language).arg(size.width()).arg(size.height());
}

QStringList subjectsOf(const QList<Figure> &figures)
{
    QStringList subjects;
    for (const Figure &figure : figures) {
        if (figure.face.isEmpty())
            continue; // shows more than a keypad, and is in no table
        for (const QString &language : figure.languages)
            subjects << subject(figure.face, figure.look, language, figure.size);
    }
    subjects.sort();
    return subjects;
}

// What lies beside the program.
struct Beside
{
    bool dictionary, translations;
};

Beside besideTheDemo()
{
    const QDir folder = QFileInfo(u(HMI_DEMO)).dir();
    return { folder.exists(u("data.db")), folder.exists(u("translations/HMIDevice_zh_CN.qm")) };
}

void addSubjects(const QString &face, const QSize &size, const Beside &beside,
                 QStringList *subjects)
{
    for (const Look &look : galleryLooks()) {
        for (const Language &language : galleryLanguages()) {
            if (beside.translations || !language.isTranslation)
                *subjects << subject(face, u(look.name), u(language.name), size);
        }
    }
}

QStringList subjectsOfTables(const Beside &beside)
{
    QStringList subjects;
    for (const KeypadKind &keypad : galleryKeypads()) {
        for (const Face &face : keypad.faces) {
            if (face.isChinese && !beside.dictionary)
                continue;
            const QVector<QSize> sizes = gallerySizes(false) + gallerySizes(true);
            for (const QSize &size : sizes)
                addSubjects(u("%1-%2").arg(u(keypad.name), u(face.name)), size, beside, &subjects);
        }
    }
    subjects.sort();
    return subjects;
}

QStringList picturesIn(const QString &folder)
{
    return QDir(folder).entryList({ u("*.png") }, QDir::Files, QDir::Name);
}

// A keypad has its ground, frames and letters smoothed at their edges: dozens of colours.
int countColours(const QImage &picture)
{
    QSet<QRgb> colours;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            colours.insert(picture.pixel(x, y));
    }
    return colours.size();
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

} // namespace

class tst_Gallery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyRowOfTheTablesIsThere();
    void everyPictureIsAsThePageSays();
    void theSecondReplacesTheFirst();
    void theProgramAlone();
    void anotherPageStays();

private:
    QString path(const char *name) const { return m_directory.filePath(u(name)); }

    QTemporaryDir m_directory;
    QString m_gallery;
};

void tst_Gallery::initTestCase()
{
    QVERIFY(m_directory.isValid());
    m_gallery = path("a gallery, new");
    const Run run = draw(m_gallery);
    QCOMPARE(run.complaint, QString());
    QCOMPARE(run.status, 0);
    const QString told = u("%1 pictures in %2\n").arg(picturesIn(m_gallery).size()).arg(m_gallery);
    QCOMPARE(run.output.right(told.length()), told);
    QCOMPARE(run.output == told, besideTheDemo().dictionary && besideTheDemo().translations);
}

void tst_Gallery::everyRowOfTheTablesIsThere()
{
    QCOMPARE(subjectsOf(figuresOf(m_gallery)), subjectsOfTables(besideTheDemo()));
}

void tst_Gallery::everyPictureIsAsThePageSays()
{
    const QList<Figure> figures = figuresOf(m_gallery);
    QStringList files;
    for (const Figure &figure : figures) {
        const QImage picture(m_gallery + u("/") + figure.file);
        QCOMPARE(picture.size(), figure.size);
        QVERIFY2(countColours(picture) > 24, qPrintable(figure.file));
        QCOMPARE(figure.link, figure.file);
        QVERIFY(!figure.alt.isEmpty());
        files << figure.file;
    }
    files.sort();
    QCOMPARE(files, picturesIn(m_gallery));
}

void tst_Gallery::theSecondReplacesTheFirst()
{
    const QDir folder(m_gallery);
    const QStringList names = picturesIn(m_gallery);
    QHash<QString, QByteArray> first;
    for (const QString &name : names)
        first.insert(name, bytesOf(folder.filePath(name)));
    const QByteArray firstPage = bytesOf(folder.filePath(u("index.html")));
    QVERIFY(folder.exists(names.first()));
    QVERIFY(QFile::copy(folder.filePath(names.first()), folder.filePath(u("left-over.png"))));
    QVERIFY(QImage(2, 2, QImage::Format_RGB32).save(folder.filePath(u("own.png"))));
    CHECKED(write(folder.filePath(u("own.txt")), "mine"));
    QVERIFY(QFile::remove(folder.filePath(names.last())));

    QCOMPARE(draw(m_gallery).status, 0);
    QCOMPARE(QImage(folder.filePath(u("own.png"))).size(), QSize(2, 2));
    QCOMPARE(bytesOf(folder.filePath(u("own.txt"))), QByteArray("mine"));
    QVERIFY(QFile::remove(folder.filePath(u("own.png"))));
    QCOMPARE(picturesIn(m_gallery), names);
    for (const QString &name : names)
        QVERIFY2(bytesOf(folder.filePath(name)) == first.value(name), qPrintable(name));
    QCOMPARE(bytesOf(folder.filePath(u("index.html"))), firstPage);
}

void tst_Gallery::theProgramAlone()
{
    const QString program = path("hmi-demo");
    QVERIFY(QFile::copy(u(HMI_DEMO), program));
    const QString gallery = path("alone");
    const Run run = draw(gallery, program);
    QCOMPARE(run.complaint, QString());
    QCOMPARE(run.status, 0);
    const QStringList lines = run.output.split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 4); // the last one is empty
    QVERIFY(lines.at(0).startsWith(u("No pinyin dictionary beside the demo")));
    QVERIFY(lines.at(1).startsWith(u("No translation for 中文 beside the demo")));
    const QByteArray page = bytesOf(gallery + u("/index.html"));
    QVERIFY(page.contains(lines.at(0).toUtf8()));
    QVERIFY(page.contains(lines.at(1).toUtf8()));
    QCOMPARE(subjectsOf(figuresOf(gallery)), subjectsOfTables({ false, false }));
}

void tst_Gallery::anotherPageStays()
{
    const QString gallery = path("a site");
    QVERIFY(QDir().mkpath(gallery));
    CHECKED(write(gallery + u("/index.html"), "<title>Of others</title>"));
    const Run run = draw(gallery);
    QCOMPARE(run.status, 1);
    QCOMPARE(run.output, QString());
    QCOMPARE(run.complaint,
             u("hmi-demo: \"%1/index.html\" is there and is not of a gallery\n").arg(gallery));
    QCOMPARE(QDir(gallery).entryList(QDir::Files), QStringList(u("index.html")));
    QCOMPARE(bytesOf(gallery + u("/index.html")), QByteArray("<title>Of others</title>"));
}

QTEST_GUILESS_MAIN(tst_Gallery)
#include "tst_Gallery.moc"
