// SPDX-License-Identifier: MIT
#include "CharacterDriver.h"
#include "support/DictionaryFile.h"
#include "support/MessageLog.h"

#include <QIntValidator>
#include <QMetaMethod>
#include <QPointer>
#include <QScopedPointer>
#include <QSignalMapper>
#include <QSqlDatabase>
#include <QSqlQuery>

// The keypad's wiring, its binding and its life. What the keys do is in tst_CharacterContent and
// tst_Pinyin.

namespace {

// A field whose screen goes with its keypad as soon as the field has a value.
class ClosingField : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    explicit ClosingField(CharacterKeypad *keypad)
        : m_keypad(keypad)
    {
        keypad->setObject(this);
    }

    QString text() const { return QString(); }
    void setText(const QString &) { m_keypad.reset(); }

    CharacterKeypad *keypad() const { return m_keypad.data(); }

private:
    QScopedPointer<CharacterKeypad> m_keypad;
};

// Makes a function of QObject's own known to the test.
class Sender : public QObject
{
public:
    static int connections(const QObject *sender, const QByteArray &signal)
    {
        return (sender->*(&Sender::receivers))(signal.constData());
    }
};

int connectionsOf(const QObject *sender)
{
    int count = 0;
    const QMetaObject *type = sender->metaObject();
    for (int i = 0; i < type->methodCount(); ++i) {
        const QMetaMethod method = type->method(i);
        if (method.methodType() == QMetaMethod::Signal)
            count += Sender::connections(sender, "2" + QtDifferences::methodSignature(method));
    }
    return count;
}

// How many receivers the signals of an object and of its children have.
int connectionsIn(const QObject *object)
{
    int count = connectionsOf(object);
    const QList<QObject *> children = object->findChildren<QObject *>();
    for (const QObject *child : children)
        count += connectionsOf(child);
    return count;
}

} // namespace

class tst_CharacterKeypad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itIsAFramelessDialogOfItsKind();
    void eachClickSendsTheLabelOnce_data();
    void eachClickSendsTheLabelOnce();
    void relabellingDoesNotConnectAgain();
    void aKeyThatIsDestroyedIsMappedToNothing();
    void bindingLeavesTheKeySetAlone();
    void deletingItIsSilent_data();
    void deletingItIsSilent();
    void deletingItEndsWhatAnApplicationBegan();
    void aKeyMayDestroyIt();
    void itCanBeBuiltAgain();
};

void tst_CharacterKeypad::itIsAFramelessDialogOfItsKind()
{
    CharacterKeypad plain(nullptr, Qt::WindowFlags());
    QVERIFY(plain.windowFlags() & Qt::FramelessWindowHint);
    QCOMPARE(plain.metaObject()->className(), "CharacterKeypad");
    QVERIFY(plain.metaObject()->indexOfSignal("signal_kTypeKeyPressed(int)") >= 0);
    const int slot = plain.metaObject()->indexOfSlot("sendContent(QString)");
    QVERIFY(slot >= 0);
    QCOMPARE(plain.metaObject()->method(slot).access(), QMetaMethod::Private);
}

void tst_CharacterKeypad::eachClickSendsTheLabelOnce_data()
{
    addFaceRows();
}

void tst_CharacterKeypad::eachClickSendsTheLabelOnce()
{
    QFETCH(int, face);
    DictionaryFile dictionary;
    CHECKED(dictionary.create(everydayWords()));
    CharacterStage stage;
    CharacterKeypad &keypad = stage.keypad;
    keypad.show();
    CHECKED(press(keypad, faces[face].taps));
    QApplication::processEvents();
    if (face == Chinese)
        CHECKED(press(keypad, "z h u > <"));

    // Deaf to its mapper, the keypad keeps its labels while all of them are clicked.
    QSignalMapper *mapper = keypad.findChild<QSignalMapper *>();
    QVERIFY(QObject::disconnect(mapper, nullptr, &keypad, nullptr));
    QSignalSpy sent(mapper, HMI_MAPPED_SIGNAL);
    const QList<QWidget *> widgets = clickableWidgets(keypad);
    QCOMPARE(widgets.size(), 52);
    for (QWidget *widget : widgets) {
        sent.clear();
        QTest::mouseClick(widget, Qt::LeftButton);
        QCOMPARE(sent.count(), widget->isEnabled() ? 1 : 0);
        if (widget->isEnabled())
            QCOMPARE(sent.at(0).at(0).toString(), labelOf(widget));
    }
}

void tst_CharacterKeypad::relabellingDoesNotConnectAgain()
{
    DictionaryFile dictionary;
    CHECKED(dictionary.create(everydayWords()));
    CharacterKeypad keypad(nullptr, Qt::WindowFlags());
    const char round[] = "caps CAPS CN n i > < Del Del EN *# << CN *# << EN";
    CHECKED(press(keypad, round));
    const int connections = connectionsIn(&keypad);
    QVERIFY(connections > 52); // at least one of each key and label
    for (int i = 0; i < 20; ++i)
        CHECKED(press(keypad, round));
    QCOMPARE(connectionsIn(&keypad), connections);
    QCOMPARE(shownFace(keypad), u(faces[English].shown));
    CHECKED(press(keypad, "q 1 , Space ."));
    QCOMPARE(editLine(&keypad)->text(), u("q1, ."));
}

// Relabelled before: a keypad drops what its mapper had connected for the former label.
void tst_CharacterKeypad::aKeyThatIsDestroyedIsMappedToNothing()
{
    CharacterKeypad keypad(nullptr, Qt::WindowFlags());
    CHECKED(press(keypad, "caps CAPS"));
    const QSignalMapper *mapper = keypad.findChild<QSignalMapper *>();
    QToolButton *letter = key(&keypad, u("q"));
    QCOMPARE(mapper->mapping(u("q")), static_cast<QObject *>(letter));
    delete letter;
    QVERIFY(!mapper->mapping(u("q")));
}

void tst_CharacterKeypad::bindingLeavesTheKeySetAlone()
{
    CharacterStage stage;
    const QIntValidator digits(0, 999, nullptr);
    stage.keypad.setValidator(&digits);
    CHECKED(press(stage.keypad, "CN n"));
    QLineEdit other(u("untouched"));
    stage.keypad.setObject(&other);
    QCOMPARE(shownFace(stage.keypad), u(faces[Chinese].shown));
    QVERIFY(!modeKey(stage.keypad)->isEnabled());
    QCOMPARE(shownPinyin(stage.keypad), u("n"));
    QCOMPARE(stage.line()->validator(), static_cast<const QValidator *>(&digits));
    QCOMPARE(other.text(), u("untouched"));
}

void tst_CharacterKeypad::deletingItIsSilent_data()
{
    QTest::addColumn<bool>("withDictionary");
    QTest::addColumn<bool>("withView"); // it is the view that is deleted
    QTest::addColumn<QString>("taps");

    static const struct
    {
        const char *name;
        bool withDictionary, withView;
        const char *taps;
    } rows[] = { { "new", true, false, "" },
                 { "new, no dictionary", false, false, "" },
                 { "composing", true, false, "CN n i >" },
                 { "composing, no dictionary", false, false, "CN n i >" },
                 { "composing, with its view", true, true, "CN n i >" },
                 { "with its view, no dictionary", false, true, "CN n i >" } };
    for (const auto &row : rows)
        QTest::newRow(row.name) << row.withDictionary << row.withView << u(row.taps);
}

void tst_CharacterKeypad::deletingItIsSilent()
{
    QFETCH(bool, withDictionary);
    QFETCH(bool, withView);
    QFETCH(QString, taps);
    DictionaryFile dictionary;
    if (withDictionary)
        CHECKED(dictionary.create(everydayWords()));

    MessageLog log;
    PanelView *view = new PanelView(1);
    QPointer<CharacterKeypad> keypad(new CharacterKeypad(view, Qt::WindowFlags()));
    QVERIFY(QSqlDatabase::contains(u("pinyin")));
    CHECKED(press(*keypad, taps));
    if (withView)
        delete view;
    else
        delete keypad.data();
    QVERIFY(!keypad);
    QVERIFY(!QSqlDatabase::contains(u("pinyin")));
    if (!withView)
        delete view;
    QCOMPARE(log.messages(), QStringList());
}

void tst_CharacterKeypad::deletingItEndsWhatAnApplicationBegan()
{
    DictionaryFile dictionary;
    CHECKED(dictionary.create(everydayWords()));
    const QByteArray before = DictionaryFile::bytes();
    MessageLog log;
    QScopedPointer<CharacterKeypad> keypad(new CharacterKeypad(nullptr, Qt::WindowFlags()));
    QSqlDatabase held = QSqlDatabase::database(u("pinyin"));
    QVERIFY(held.transaction());
    QVERIFY(QSqlQuery(held).exec(DictionaryFile::insertion("qq", u("轻切"))));
    keypad.reset();
    QCOMPARE(log.messages(),
             QStringList(u("QSqlDatabasePrivate::removeDatabase: connection 'pinyin' is still in "
                           "use, all queries will cease to work.")));
    QVERIFY(!held.isOpen());
    QCOMPARE(DictionaryFile::bytes(), before);
    QCOMPARE(DictionaryFile::entries(), QStringList(u("data.db")));
}

// The mapper that sends what the key says looks at itself after it has sent.
void tst_CharacterKeypad::aKeyMayDestroyIt()
{
    PanelView view(1);
    const ClosingField field(new CharacterKeypad(&view, Qt::WindowFlags()));
    const QPointer<QSignalMapper> mapper(field.keypad()->findChild<QSignalMapper *>());
    field.keypad()->show();
    CHECKED(press(*field.keypad(), "Enter"));
    QVERIFY(!field.keypad());
    QVERIFY(mapper);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!mapper);
}

void tst_CharacterKeypad::itCanBeBuiltAgain()
{
    DictionaryFile dictionary;
    CHECKED(dictionary.create(everydayWords()));
    MessageLog log;
    for (int i = 0; i < 3; ++i) {
        CharacterStage stage;
        CHECKED(press(stage.keypad, "CN z h u z h o u"));
        QCOMPARE(candidateLine(stage.keypad), u("主轴"));
        QCOMPARE(QSqlDatabase::database(u("pinyin")).databaseName(), DictionaryFile::path());
    }
    QCOMPARE(log.messages(), QStringList());
}

QTEST_MAIN(tst_CharacterKeypad)
#include "tst_CharacterKeypad.moc"
