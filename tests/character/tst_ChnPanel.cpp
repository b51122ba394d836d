// SPDX-License-Identifier: MIT
#include "CharacterDriver.h"
#include "support/DarkScheme.h"
#include "support/QtDifferences.h"

#include <QHBoxLayout>
#include <QSignalMapper>

namespace {

enum Step { ShowList, NextPage, PreviousPage, ClearCandidates, ClearAll };

/* A panel, and a mapper whose strings can be looked at. */
class Strip
{
public:
    Strip()
        : panel(nullptr)
        , m_mapped(&mapper, HMI_MAPPED_SIGNAL)
    {
    }

    void act(Step step, const QStringList &list, bool withMapper = true)
    {
        QSignalMapper *used = withMapper ? &mapper : nullptr;
        switch (step) {
        case ShowList:
            panel.setNewPinYin(list, used);
            break;
        case NextPage:
            panel.nextPage(list, used);
            break;
        case PreviousPage:
            panel.prePage(list, used);
            break;
        case ClearCandidates:
            panel.clearPinYin(used, 0);
            break;
        case ClearAll:
            panel.clearPinYin(used, 1);
            break;
        }
    }

    /* What the labels show, "." for an empty one. */
    QString shown() const { return line(shownCandidates(&panel)); }

    /* What the labels are mapped to, "." for "" and "none" for nothing. */
    QString mapped()
    {
        QStringList texts;
        for (short i = 0; i < 5; ++i) {
            m_mapped.clear();
            mapper.map(panel.getClickLabel(i));
            texts << (m_mapped.isEmpty() ? u("none") : m_mapped.at(0).at(0).toString());
        }
        return line(texts);
    }

    ChnPanel panel;
    QSignalMapper mapper;

private:
    static QString line(QStringList texts)
    {
        for (int i = 0; i < texts.size(); ++i) {
            if (texts.at(i).isEmpty())
                texts[i] = u(".");
        }
        return texts.join(QLatin1String(" "));
    }

    QSignalSpy m_mapped;
};

/* "1", "2" ... */
QStringList numbers(int count)
{
    QStringList list;
    for (int i = 1; i <= count; ++i)
        list << QString::number(i);
    return list;
}

} // namespace

class tst_ChnPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void theStripStandsInOrder();
    void itIsBornHiddenEmptyAndWithoutFrame();
    void elementsAreFoundByIndex_data();
    void elementsAreFoundByIndex();
    void theFifthIndexIsNoCandidate();
    void theFirstPageIsShown_data();
    void theFirstPageIsShown();
    void pagesTurnWithoutWrapping_data();
    void pagesTurnWithoutWrapping();
    void anEmptyListChangesNothing();
    void aShorterListLeavesOldCandidates();
    void aNewListStartsAtItsFirstPage();
    void clearingForgetsThePages_data();
    void clearingForgetsThePages();
    void thereIsNothingToPageAtFirst();
    void nothingHappensWithoutAMapper_data();
    void nothingHappensWithoutAMapper();
    void aClickSendsWhatTheLabelShows();
    void markupIsShownAsItStands();
    void coloursFollowThePanelTypeOfItsConstruction_data();
    void coloursFollowThePanelTypeOfItsConstruction();
};

void tst_ChnPanel::cleanup()
{
    HMIDeviceInfo::setDeviceInfo(1, QSize());
}

void tst_ChnPanel::theStripStandsInOrder()
{
    ChnPanel panel(nullptr);
    QList<QWidget *> expected;
    expected << panel.getToolButton(0) << panel.getPinyinLabel();
    for (short i = 0; i < 5; ++i)
        expected << panel.getClickLabel(i);
    expected << panel.getToolButton(1);

    QHBoxLayout *layout = qobject_cast<QHBoxLayout *>(panel.layout());
    QVERIFY(layout);
    QCOMPARE(layout->count(), expected.size());
    for (int i = 0; i < expected.size(); ++i) {
        QCOMPARE(layout->itemAt(i)->widget(), expected.at(i));
        QCOMPARE(expected.at(i)->parentWidget(), static_cast<QWidget *>(&panel));
        QCOMPARE(layout->stretch(i), 0);
        QVERIFY(expected.at(i)->sizePolicy()
                == QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));
    }
    QWidget bare;
    QHBoxLayout bareLayout(&bare);
    QCOMPARE(layout->spacing(), bareLayout.spacing());
    QCOMPARE(layout->contentsMargins(), bareLayout.contentsMargins());
}

void tst_ChnPanel::itIsBornHiddenEmptyAndWithoutFrame()
{
    QWidget parent;
    parent.setFont(QFont(parent.font().family(), 31));
    ChnPanel panel(&parent);
    QVERIFY(panel.isHidden());
    QVERIFY(panel.windowFlags() & Qt::FramelessWindowHint);
    QVERIFY(!panel.isWindow());
    QCOMPARE(panel.parentWidget(), &parent);
    QCOMPARE(panel.metaObject()->className(), "ChnPanel");
    QCOMPARE(panel.getPinyinLabel()->text(), QString());
    QCOMPARE(panel.getToolButton(0)->text(), u("<"));
    QCOMPARE(panel.getToolButton(1)->text(), u(">"));
    for (short i = 0; i < 5; ++i) {
        QCOMPARE(panel.getClickLabel(i)->text(), QString());
        QCOMPARE(int(panel.getClickLabel(i)->alignment()), int(Qt::AlignCenter));
        QCOMPARE(panel.getClickLabel(i)->font().pointSize(), 31);
    }
}

void tst_ChnPanel::elementsAreFoundByIndex_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("isCandidate");
    QTest::addColumn<bool>("isButton");

    QTest::newRow("smallest short") << -32768 << false << false;
    QTest::newRow("-1") << -1 << false << false;
    QTest::newRow("0") << 0 << true << true;
    QTest::newRow("1") << 1 << true << true;
    QTest::newRow("2") << 2 << true << false;
    QTest::newRow("4") << 4 << true << false;
    QTest::newRow("6") << 6 << false << false;
    QTest::newRow("largest short") << 32767 << false << false;
}

void tst_ChnPanel::elementsAreFoundByIndex()
{
    QFETCH(int, index);
    QFETCH(bool, isCandidate);
    QFETCH(bool, isButton);
    ChnPanel panel(nullptr);
    QCOMPARE(panel.getClickLabel(short(index)) != nullptr, isCandidate);
    QCOMPARE(panel.getToolButton(short(index)) != nullptr, isButton);
}

/* Nobody asks for it; all that may come is nothing, or the previous button that it once was. */
void tst_ChnPanel::theFifthIndexIsNoCandidate()
{
    ChnPanel panel(nullptr);
    const void *fifth = panel.getClickLabel(5);
    QVERIFY(!fifth || fifth == panel.getToolButton(0));
    QVERIFY(!panel.getToolButton(5));
}

void tst_ChnPanel::theFirstPageIsShown_data()
{
    QTest::addColumn<int>("candidates");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("mapped");

    QTest::newRow("one") << 1 << "1 . . . ."
                         << "1 none none none none";
    QTest::newRow("four") << 4 << "1 2 3 4 ."
                          << "1 2 3 4 none";
    QTest::newRow("five") << 5 << "1 2 3 4 5"
                          << "1 2 3 4 5";
    QTest::newRow("six") << 6 << "1 2 3 4 5"
                         << "1 2 3 4 5";
    QTest::newRow("three hundred") << 300 << "1 2 3 4 5"
                                   << "1 2 3 4 5";
}

void tst_ChnPanel::theFirstPageIsShown()
{
    QFETCH(int, candidates);
    QFETCH(QString, shown);
    QFETCH(QString, mapped);
    Strip strip;
    strip.panel.getPinyinLabel()->setText(u("ni"));
    strip.act(ShowList, numbers(candidates));
    QCOMPARE(strip.shown(), shown);
    QCOMPARE(strip.mapped(), mapped);
    QCOMPARE(strip.panel.getPinyinLabel()->text(), u("ni"));
}

void tst_ChnPanel::pagesTurnWithoutWrapping_data()
{
    QTest::addColumn<int>("candidates");
    QTest::addColumn<QString>("taps"); // of the paging buttons
    QTest::addColumn<QString>("shown");

    QTest::newRow("one page, next") << 5 << ">"
                                    << "1 2 3 4 5";
    QTest::newRow("one page, previous") << 5 << "<"
                                        << "1 2 3 4 5";
    QTest::newRow("two candidates, next") << 2 << ">"
                                          << "1 2 . . .";
    QTest::newRow("six, next") << 6 << ">"
                               << "6 . . . .";
    QTest::newRow("six, next twice") << 6 << ">>"
                                     << "6 . . . .";
    QTest::newRow("six, next and back") << 6 << "><"
                                        << "1 2 3 4 5";
    QTest::newRow("six, beyond the end and back") << 6 << ">>><"
                                                  << "1 2 3 4 5";
    QTest::newRow("ten, next") << 10 << ">"
                               << "6 7 8 9 10";
    QTest::newRow("ten, next twice") << 10 << ">>"
                                     << "6 7 8 9 10";
    QTest::newRow("eleven, last page") << 11 << ">>"
                                       << "11 . . . .";
    QTest::newRow("twelve, second page") << 12 << ">"
                                         << "6 7 8 9 10";
    QTest::newRow("twelve, last page") << 12 << ">>"
                                       << "11 12 . . .";
    QTest::newRow("twelve, last page and back") << 12 << ">><"
                                                << "6 7 8 9 10";
    QTest::newRow("twelve, before the first") << 12 << "<<>"
                                              << "6 7 8 9 10";
    QTest::newRow("twelve, there and back again") << 12 << ">><<<"
                                                  << "1 2 3 4 5";
}

void tst_ChnPanel::pagesTurnWithoutWrapping()
{
    QFETCH(int, candidates);
    QFETCH(QString, taps);
    QFETCH(QString, shown);
    const QStringList list = numbers(candidates);
    Strip strip;
    strip.act(ClearAll, list);
    strip.act(ShowList, list);
    for (int i = 0; i < taps.size(); ++i)
        strip.act(taps.at(i) == QLatin1Char('>') ? NextPage : PreviousPage, list);
    QCOMPARE(strip.shown(), shown);
    QCOMPARE(strip.mapped(), shown);
}

void tst_ChnPanel::anEmptyListChangesNothing()
{
    const QStringList list = numbers(12);
    Strip strip;
    strip.act(ShowList, list);
    strip.act(NextPage, list);
    strip.act(ShowList, QStringList());
    QCOMPARE(strip.shown(), u("6 7 8 9 10"));
    QCOMPARE(strip.mapped(), u("6 7 8 9 10"));
    strip.act(NextPage, list);
    QCOMPARE(strip.shown(), u("11 12 . . ."));
}

void tst_ChnPanel::aShorterListLeavesOldCandidates()
{
    Strip strip;
    strip.act(ShowList, numbers(5));
    const QStringList two = QStringList() << u("a") << u("b");
    strip.act(ShowList, two);
    QCOMPARE(strip.shown(), u("a b 3 4 5"));
    QCOMPARE(strip.mapped(), u("a b 3 4 5"));
    strip.act(NextPage, two);
    strip.act(PreviousPage, two);
    QCOMPARE(strip.shown(), u("a b 3 4 5"));
    strip.act(ClearCandidates, two);
    strip.act(ShowList, two);
    QCOMPARE(strip.shown(), u("a b . . ."));
    QCOMPARE(strip.mapped(), u("a b . . ."));
}

void tst_ChnPanel::aNewListStartsAtItsFirstPage()
{
    Strip strip;
    strip.act(ShowList, numbers(12));
    strip.act(NextPage, numbers(12));
    strip.act(NextPage, numbers(12));
    strip.act(ShowList, numbers(6));
    QCOMPARE(strip.shown(), u("1 2 3 4 5"));
    strip.act(PreviousPage, numbers(6));
    QCOMPARE(strip.shown(), u("1 2 3 4 5"));
    strip.act(NextPage, numbers(6));
    strip.act(NextPage, numbers(6));
    QCOMPARE(strip.shown(), u("6 . . . ."));
}

void tst_ChnPanel::clearingForgetsThePages_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("pinyin");

    QTest::newRow("candidates alone") << int(ClearCandidates) << "ni";
    QTest::newRow("the pinyin as well") << int(ClearAll) << "";
}

void tst_ChnPanel::clearingForgetsThePages()
{
    QFETCH(int, step);
    QFETCH(QString, pinyin);
    const QStringList list = numbers(12);
    Strip strip;
    strip.panel.getPinyinLabel()->setText(u("ni"));
    strip.act(ShowList, list);
    strip.act(NextPage, list);
    strip.act(Step(step), list);
    QCOMPARE(strip.shown(), u(". . . . ."));
    QCOMPARE(strip.mapped(), u(". . . . ."));
    QCOMPARE(strip.panel.getPinyinLabel()->text(), pinyin);
    strip.act(NextPage, list);
    strip.act(PreviousPage, list);
    QCOMPARE(strip.shown(), u(". . . . ."));
    strip.panel.getPinyinLabel()->setText(u("hao"));
    strip.panel.clearPinYin(&strip.mapper, -1);
    QCOMPARE(strip.panel.getPinyinLabel()->text(), QString());
}

void tst_ChnPanel::thereIsNothingToPageAtFirst()
{
    Strip strip;
    strip.act(NextPage, numbers(12));
    strip.act(PreviousPage, numbers(12));
    QCOMPARE(strip.shown(), u(". . . . ."));
    QCOMPARE(strip.mapped(), u("none none none none none"));
}

void tst_ChnPanel::nothingHappensWithoutAMapper_data()
{
    QTest::addColumn<int>("step");

    QTest::newRow("setNewPinYin") << int(ShowList);
    QTest::newRow("nextPage") << int(NextPage);
    QTest::newRow("prePage") << int(PreviousPage);
    QTest::newRow("clearPinYin") << int(ClearCandidates);
    QTest::newRow("clearPinYin, all") << int(ClearAll);
}

void tst_ChnPanel::nothingHappensWithoutAMapper()
{
    QFETCH(int, step);
    const QStringList list = numbers(15);
    Strip strip;
    strip.panel.getPinyinLabel()->setText(u("ni"));
    strip.act(ShowList, list);
    strip.act(NextPage, list);
    strip.act(Step(step), step == ShowList ? numbers(2) : list, false);
    QCOMPARE(strip.shown(), u("6 7 8 9 10"));
    QCOMPARE(strip.mapped(), u("6 7 8 9 10"));
    QCOMPARE(strip.panel.getPinyinLabel()->text(), u("ni"));
    strip.act(NextPage, list);
    QCOMPARE(strip.shown(), u("11 12 13 14 15"));
}

void tst_ChnPanel::aClickSendsWhatTheLabelShows()
{
    Strip strip;
    for (short i = 0; i < 5; ++i)
        connect(strip.panel.getClickLabel(i), SIGNAL(clicked()), &strip.mapper, SLOT(map()));
    const QStringList list = numbers(7);
    strip.act(ShowList, list);
    strip.act(NextPage, list);

    QSignalSpy sent(&strip.mapper, HMI_MAPPED_SIGNAL);
    for (short i = 0; i < 5; ++i)
        QTest::mouseClick(strip.panel.getClickLabel(i), Qt::LeftButton);
    QStringList texts;
    for (int i = 0; i < sent.count(); ++i)
        texts << sent.at(i).at(0).toString();
    QCOMPARE(texts, QStringList() << u("6") << u("7") << QString() << QString() << QString());
}

void tst_ChnPanel::markupIsShownAsItStands()
{
    Strip strip;
    const QString text = u("<b>bold</b> & <img src=\"x\">");
    strip.act(ShowList, QStringList(text));
    QCOMPARE(strip.panel.getClickLabel(0)->text(), text);
    QCOMPARE(int(strip.panel.getClickLabel(0)->textFormat()), int(Qt::PlainText));
}

void tst_ChnPanel::coloursFollowThePanelTypeOfItsConstruction_data()
{
    DarkScheme::addPanelTypeRows();
}

void tst_ChnPanel::coloursFollowThePanelTypeOfItsConstruction()
{
    QFETCH(int, type);
    QFETCH(int, typeLater);
    QFETCH(bool, dark);
    HMIDeviceInfo::setDeviceInfo(type, QSize(640, 480));
    ChnPanel panel(nullptr);
    HMIDeviceInfo::setDeviceInfo(typeLater, QSize(640, 480));

    CHECKED(DarkScheme::verify(panel.getToolButton(0), dark));
    CHECKED(DarkScheme::verify(panel.getToolButton(1), dark));
    CHECKED(DarkScheme::verify(panel.getPinyinLabel(), dark));
    for (short i = 0; i < 5; ++i)
        CHECKED(DarkScheme::verify(panel.getClickLabel(i), dark));
}

QTEST_MAIN(tst_ChnPanel)
#include "tst_ChnPanel.moc"
