// SPDX-License-Identifier: MIT
#include "Floors.h"
#include "Measurement.h"

#include <HMIDevice/CharacterKeypad.h>
#include <HMIDevice/DateTimeKeypad.h>
#include <HMIDevice/GCodeKeypad.h>
#include <HMIDevice/HMIDeviceInfo.h>
#include <HMIDevice/KeyBoardLineEdit.h>
#include <HMIDevice/NumericKeypad.h>
#include <HMIDevice/vondKeypad.h>

#include <QApplication>
#include <QTextStream>
#include <QToolButton>

#include <memory>

// What the library costs, beside what the same thing costs without it.

namespace {

const int constructionRounds = 200;
const int keyRounds = 5000;
const int letterRounds = 500;

void report(const QString &what, const Comparison &comparison)
{
    QTextStream(stdout)
        << what.leftJustified(44) << ' '
        << QString::number(comparison.library, 'f', 1).rightJustified(9) << ' '
        << QString::number(comparison.floor, 'f', 1).rightJustified(9) << ' '
        << QString::number(comparison.library / comparison.floor, 'f', 2).rightJustified(7) << '\n';
}

QToolButton *key(const QWidget &keypad, const char *label)
{
    const QList<QToolButton *> keys = keypad.findChildren<QToolButton *>();
    for (QToolButton *button : keys) {
        if (button->text() == QLatin1String(label))
            return button;
    }
    qFatal("no key %s", label);
    return nullptr;
}

template <class Keypad>
void compareConstruction(const char *name)
{
    const int keys =
        Keypad(nullptr, Qt::WindowFlags()).template findChildren<QToolButton *>().size();
    const auto library = [] {
        Keypad(nullptr, Qt::WindowFlags());
    };
    const auto floor = [keys] {
        delete createBareKeypad(keys);
    };
    report(QString::fromLatin1("%1: new, beside %2 bare keys").arg(QLatin1String(name)).arg(keys),
           compare(library, floor, constructionRounds));
}

template <class Keypad>
void compareKeyPress(const char *name, const char *label)
{
    Keypad keypad(nullptr, Qt::WindowFlags());
    KeyBoardLineEdit *editLine = keypad.template findChild<KeyBoardLineEdit *>();
    QToolButton *button = key(keypad, label);
    QLineEdit bare;
    const QString text = QLatin1String(label);
    const auto library = [&] {
        editLine->clear();
        button->click();
    };
    const auto floor = [&] {
        bare.clear();
        button->blockSignals(true); // the click itself is the toolkit's
        button->click();
        button->blockSignals(false);
        bare.insert(text);
    };
    report(QString::fromLatin1("%1: a key, beside click and insertion").arg(QLatin1String(name)),
           compare(library, floor, keyRounds));
}

void compareLetters(const QStringList &letters)
{
    PreparedQuery query(QCoreApplication::applicationDirPath() + QLatin1String("/data.db"));
    if (!query.isUsable()) {
        QTextStream(stdout) << "No dictionary beside the program: pinyin is not measured\n";
        return;
    }
    CharacterKeypad keypad(nullptr, Qt::WindowFlags());
    key(keypad, "CN")->click();
    QToolButton *del = key(keypad, "Del");
    QString pinyin;
    for (const QString &letter : letters) {
        QToolButton *button = key(keypad, qPrintable(letter));
        const QString shorter = pinyin;
        pinyin += letter;
        // "Del" takes the letter back with a query for the shorter pinyin; both are measured.
        const auto library = [&] {
            button->click();
            del->click();
        };
        const auto floor = [&] {
            query.candidates(pinyin);
            if (!shorter.isEmpty())
                query.candidates(shorter);
        };
        const int rows = query.candidates(pinyin).size();
        report(
            QString::fromLatin1("\"%1\" (%2 rows) and back, beside queries").arg(pinyin).arg(rows),
            compare(library, floor, letterRounds));
        button->click();
    }
}

void reportMemory()
{
    const long before = residentMemory();
    const long allocatedBefore = allocatedMemory();
    const std::unique_ptr<QWidget> keypads[] = {
        std::unique_ptr<QWidget>(new NumericKeypad(nullptr, Qt::WindowFlags())),
        std::unique_ptr<QWidget>(new GCodeKeypad(nullptr, Qt::WindowFlags())),
        std::unique_ptr<QWidget>(new vondKeypad(nullptr, Qt::WindowFlags())),
        std::unique_ptr<QWidget>(new DateTimeKeypad(nullptr, Qt::WindowFlags())),
        std::unique_ptr<QWidget>(new CharacterKeypad(nullptr, Qt::WindowFlags())),
    };
    QTextStream(stdout) << "The first five keypads take " << residentMemory() - before
                        << " KiB of memory, with what Qt loads for them, "
                        << allocatedMemory() - allocatedBefore << " KiB of it on the heap\n";
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    reportMemory();
    QTextStream(stdout) << QString(44, QLatin1Char(' ')) << "   library     floor   ratio\n"
                        << QString(44, QLatin1Char(' ')) << " (microseconds, medians)\n";

    compareConstruction<NumericKeypad>("NumericKeypad");
    compareConstruction<GCodeKeypad>("GCodeKeypad");
    compareConstruction<vondKeypad>("vondKeypad");
    compareConstruction<CharacterKeypad>("CharacterKeypad");
    compareKeyPress<NumericKeypad>("NumericKeypad", "7");
    compareKeyPress<GCodeKeypad>("GCodeKeypad", "G");
    compareKeyPress<CharacterKeypad>("CharacterKeypad", "q");
    compareLetters({ QLatin1String("z"), QLatin1String("h"), QLatin1String("u") });
    compareLetters({ QLatin1String("v") }); // begins no syllable
    return 0;
}
