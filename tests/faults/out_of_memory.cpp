// SPDX-License-Identifier: MIT
//
// out_of_memory <stride> [<keypad>]
//
// An entry on each keypad, from its building to its destruction, with one allocation of it failing,
// and with all from then on: every <stride>-th of them. Qt answers with std::bad_alloc, or ends the
// program; the library must do neither worse, and the target's text must be the old or the new one,
// whole, and the new one once exec() has told that it was accepted.

#include "FailingMemory.h"

#include <HMIDevice/CharacterKeypad.h>
#include <HMIDevice/DateTimeKeypad.h>
#include <HMIDevice/GCodeKeypad.h>
#include <HMIDevice/HMIDeviceInfo.h>
#include <HMIDevice/NumericKeypad.h>
#include <HMIDevice/vondKeypad.h>

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QGraphicsView>
#include <QGridLayout>
#include <QLineEdit>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QStringList>
#include <QTimerEvent>
#include <QToolButton>

#include <cstdio>
#include <cstdlib>

namespace {

class Field : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    QString text() const { return m_text; }
    void setText(const QString &text) { m_text = text; }

    bool isWhole() const
    {
        return m_text == newText || m_text == (isConfirmed ? textWithoutCandidates : oldText);
    }

    QString oldText, newText, textWithoutCandidates;
    bool isConfirmed; // by the result of exec()

private:
    QString m_text;
};

Field *field = nullptr;

bool isFieldWhole()
{
    return field->isWhole();
}

// Taps keys of an open keypad, known by their object names, and hides it if it is still there then.
class Operator : public QObject
{
public:
    Operator(QDialog *keypad, const QStringList &keys)
        : m_keypad(keypad)
        , m_keys(keys)
        , m_timer(startTimer(0))
    {
    }

protected:
    void timerEvent(QTimerEvent *) override
    {
        killTimer(m_timer);
        QApplication::setActiveWindow(m_keypad);
        for (const QString &name : m_keys) {
            QWidget *key = m_keypad->findChild<QWidget *>(name);
            if (QToolButton *button = qobject_cast<QToolButton *>(key))
                button->click();
            else if (key)
                QMetaObject::invokeMethod(key, "clicked");
        }
        m_keypad->hide();
    }

private:
    QDialog *m_keypad;
    const QStringList m_keys; // never copied: Qt 6 does that without a look at what memory it got
    int m_timer;
};

// Qt alone, to compare with: what a keypad would be without the library.
class BareDialog : public QDialog
{
    Q_OBJECT

public:
    BareDialog(QWidget *parent, Qt::WindowFlags flags)
        : QDialog(parent, flags | Qt::FramelessWindowHint)
        , m_object(nullptr)
        , m_lineEdit(new QLineEdit(this))
    {
        QGridLayout *grid = new QGridLayout(this);
        grid->addWidget(m_lineEdit, 0, 0, 1, columns);
        for (int i = 0; i < keys; ++i) {
            QToolButton *key = new QToolButton(this);
            key->setText(QString::number(i % 10));
            key->setObjectName(QString::fromLatin1("key%1").arg(i));
            connect(key, SIGNAL(clicked()), SLOT(press()));
            grid->addWidget(key, 1 + i / columns, i % columns);
        }
    }

    void setObject(QObject *object) { m_object = object; }
    void setText(const QString &text) { m_lineEdit->setText(text); }

public Q_SLOTS:
    void press()
    {
        const QToolButton *key = qobject_cast<QToolButton *>(sender());
        if (key->text() != QLatin1String("0")) {
            m_lineEdit->insert(key->text());
            return;
        }
        m_object->setProperty("text", m_lineEdit->text());
        accept();
    }

private:
    enum { columns = 5, keys = 23 };
    QObject *m_object;
    QLineEdit *m_lineEdit;
};

// A keypad whose entry is broken off stays where it is, as that of an application does.
template <class Keypad>
void enter(const QStringList &keys)
{
    Keypad *const keypad = new Keypad(HMIDeviceInfo::graphicsView(), Qt::WindowFlags());
    keypad->setObject(field);
    keypad->setText(field->oldText);
    Operator user(keypad, keys);
    if (keypad->exec() == QDialog::Accepted)
        field->isConfirmed = true;
    delete keypad;
}

// clang-format off
const struct Entry
{
    const char *name;
    void (*enter)(const QStringList &keys);
    const char *keys;
    const char *oldText, *newText;
    const char *textWithoutCandidates; // that is confirmed where the dictionary had no memory
} entries[] = {
    { "Qt alone",        enter<BareDialog>,      "key1 key2 key0",
      "M30", "M3012", "M3012" },
    { "NumericKeypad",   enter<NumericKeypad>,   "key1 key2 signKey backspaceKey enterKey",
      "12.5", "-1", "-1" },
    { "GCodeKeypad",     enter<GCodeKeypad>,     "keyG key1 spaceKey keyX enterKey",
      "M30", "G1 X", "G1 X" },
    { "vondKeypad",      enter<vondKeypad>,      "keyX key1 signKey enterKey",
      "Y2", "-X1", "-X1" },
    { "DateTimeKeypad",  enter<DateTimeKeypad>,  "plusKey enterKey",
      "2024-02-29 12:34:56", "2025-02-28 12:34:56", "2025-02-28 12:34:56" },
    { "CharacterKeypad", enter<CharacterKeypad>, "keyA keyB symbolsKey keyC languageKey enterKey",
      "old", "ab|", "ab|" },
    { "CharacterKeypad, Chinese", enter<CharacterKeypad>,
      "languageKey keyN keyI nextPageKey candidate1 languageKey enterKey",
      "old", "\xE5\x80\xAA", "old" }
};
// clang-format on

const char *const outcomeNames[] = { "went on",
                                     "std::bad_alloc reached the caller",
                                     "ended by std::terminate() of another library",
                                     "ended as std::bad_alloc left a destructor",
                                     "ended by abort() of another library",
                                     "crashed in another library",
                                     "ENDED IN OURS",
                                     "TARGET BROKEN",
                                     "HUNG" };

bool makeDictionary()
{
    const QString file = QCoreApplication::applicationDirPath() + QLatin1String("/data.db");
    QFile::remove(file);
    {
        QSqlDatabase database =
            QSqlDatabase::addDatabase(QLatin1String("QSQLITE"), QLatin1String("maker"));
        database.setDatabaseName(file);
        if (!database.open())
            return false;
        QSqlQuery query(database);
        query.exec(QLatin1String("CREATE TABLE pinyin(py TEXT, word TEXT)"));
        query.exec(QLatin1String("CREATE INDEX i ON pinyin(py)"));
        query.exec(
            QString::fromUtf8("INSERT INTO pinyin VALUES('n','你'),('ni','你'),('ni','尼'),"
                              "('ni','呢'),('ni','泥'),('ni','妮'),('ni','倪'),('ni','逆')"));
    }
    QSqlDatabase::removeDatabase(QLatin1String("maker"));
    return true;
}

// Whether all is well.
bool report(const Entry &entry, const char *lack, const FailingMemory::Tally &tally)
{
    std::printf("%s, %s: %ld allocations, %ld of them tried\n", entry.name, lack, tally.allocations,
                tally.tried);
    for (int i = 0; i < FailingMemory::OutcomeCount; ++i) {
        if (tally.outcomes[i] != 0)
            std::printf("  %8ld %s\n", tally.outcomes[i], outcomeNames[i]);
    }
    for (const auto &place : tally.places)
        std::printf("      %8ld in %s\n", place.second, place.first.c_str());
    std::fflush(stdout);
    return tally.tried > 0 && tally.outcomes[FailingMemory::EndedInOurs] == 0
        && tally.outcomes[FailingMemory::TargetBroken] == 0
        && tally.outcomes[FailingMemory::Hung] == 0;
}

bool tryEntry(const Entry &entry, long stride)
{
    Field target;
    field = &target;
    target.oldText = QString::fromUtf8(entry.oldText);
    target.newText = QString::fromUtf8(entry.newText);
    target.textWithoutCandidates = QString::fromUtf8(entry.textWithoutCandidates);
    const QStringList keys = QString::fromLatin1(entry.keys).split(QLatin1Char(' '));
    const auto work = [&] {
        entry.enter(keys);
    };
    work(); // once with memory: Qt loads what it keeps
    if (target.text() != target.newText) {
        std::printf("%s: entered \"%s\"\n", entry.name, target.text().toUtf8().constData());
        return false;
    }
    bool isWell = true;
    const char *const lacks[] = { "one fails", "all fail from one on" };
    for (int lack = 0; lack < 2; ++lack) {
        target.setText(target.oldText);
        target.isConfirmed = false;
        const FailingMemory::Tally tally =
            FailingMemory::tryAll(work, isFieldWhole, FailingMemory::Lack(lack), stride);
        isWell = report(entry, lacks[lack], tally) && isWell;
    }
    return isWell;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const long stride = argc > 1 ? std::atol(argv[1]) : 0;
    if (stride < 1 || !makeDictionary())
        return 2;
    FailingMemory::setOurs("/libHMIDevice");
    QGraphicsView view;
    view.show();
    HMIDeviceInfo::setGraphicsView(&view);
    bool isWell = true;
    for (const Entry &entry : entries) {
        if (argc < 3 || QLatin1String(argv[2]) == QLatin1String(entry.name))
            isWell = tryEntry(entry, stride) && isWell;
    }
    return isWell ? 0 : 1;
}

#include "out_of_memory.moc"
