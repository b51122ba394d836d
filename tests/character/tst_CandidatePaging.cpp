// SPDX-License-Identifier: MIT
#include "CharacterDriver.h"

#include <QSignalMapper>

// The candidates on a ChnPanel, page by page, and what its labels are mapped to.

namespace {

enum Step { ShowList, NextPage, PreviousPage, ClearCandidates, ClearAll };

// A panel, and a mapper whose strings can be looked at.
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

    // Turns a page for each "<" and ">".
    void turnPages(const QString &taps, const QStringList &list)
    {
        for (const QChar tap : taps)
            act(tap == QLatin1Char('>') ? NextPage : PreviousPage, list);
    }

    // What the labels show, "." for an empty one.
    QString shown() const { return line(shownCandidates(&panel)); }

    // What the labels are mapped to, "." for "" and "none" for nothing.
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
    static QString line(const QStringList &texts)
    {
        QStringList words;
        for (const QString &text : texts)
            words << (text.isEmpty() ? u(".") : text);
        return words.join(u(" "));
    }

    QSignalSpy m_mapped;
};

// "1", "2" ...
QStringList numbers(int count)
{
    QStringList list;
    for (int i = 1; i <= count; ++i)
        list << QString::number(i);
    return list;
}

} // namespace

class tst_CandidatePaging : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
};

void tst_CandidatePaging::theFirstPageIsShown_data()
{
    QTest::addColumn<int>("candidates");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("mapped");

    static const struct
    {
        const char *name;
        int candidates;
        const char *shown, *mapped;
    } rows[] = { { "one", 1, "1 . . . .", "1 none none none none" },
                 { "four", 4, "1 2 3 4 .", "1 2 3 4 none" },
                 { "five", 5, "1 2 3 4 5", "1 2 3 4 5" },
                 { "six", 6, "1 2 3 4 5", "1 2 3 4 5" },
                 { "three hundred", 300, "1 2 3 4 5", "1 2 3 4 5" } };
    for (const auto &row : rows)
        QTest::newRow(row.name) << row.candidates << u(row.shown) << u(row.mapped);
}

void tst_CandidatePaging::theFirstPageIsShown()
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

void tst_CandidatePaging::pagesTurnWithoutWrapping_data()
{
    QTest::addColumn<int>("candidates");
    QTest::addColumn<QString>("taps"); // of the paging buttons
    QTest::addColumn<QString>("shown");

    static const struct
    {
        const char *name;
        int candidates;
        const char *taps, *shown;
    } rows[] = { { "one page, next", 5, ">", "1 2 3 4 5" },
                 { "one page, previous", 5, "<", "1 2 3 4 5" },
                 { "two candidates, next", 2, ">", "1 2 . . ." },
                 { "six, next", 6, ">", "6 . . . ." },
                 { "six, next twice", 6, ">>", "6 . . . ." },
                 { "six, next and back", 6, "><", "1 2 3 4 5" },
                 { "six, beyond the end and back", 6, ">>><", "1 2 3 4 5" },
                 { "ten, next", 10, ">", "6 7 8 9 10" },
                 { "ten, next twice", 10, ">>", "6 7 8 9 10" },
                 { "eleven, last page", 11, ">>", "11 . . . ." },
                 { "twelve, second page", 12, ">", "6 7 8 9 10" },
                 { "twelve, last page", 12, ">>", "11 12 . . ." },
                 { "twelve, last page and back", 12, ">><", "6 7 8 9 10" },
                 { "twelve, before the first", 12, "<<>", "6 7 8 9 10" },
                 { "twelve, there and back again", 12, ">><<<", "1 2 3 4 5" } };
    for (const auto &row : rows)
        QTest::newRow(row.name) << row.candidates << u(row.taps) << u(row.shown);
}

void tst_CandidatePaging::pagesTurnWithoutWrapping()
{
    QFETCH(int, candidates);
    QFETCH(QString, taps);
    QFETCH(QString, shown);
    const QStringList list = numbers(candidates);
    Strip strip;
    strip.act(ClearAll, list);
    strip.act(ShowList, list);
    strip.turnPages(taps, list);
    QCOMPARE(strip.shown(), shown);
    QCOMPARE(strip.mapped(), shown);
}

void tst_CandidatePaging::anEmptyListChangesNothing()
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

void tst_CandidatePaging::aShorterListLeavesOldCandidates()
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

void tst_CandidatePaging::aNewListStartsAtItsFirstPage()
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

void tst_CandidatePaging::clearingForgetsThePages_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("pinyin");

    QTest::newRow("candidates alone") << int(ClearCandidates) << u("ni");
    QTest::newRow("the pinyin as well") << int(ClearAll) << QString();
}

void tst_CandidatePaging::clearingForgetsThePages()
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

void tst_CandidatePaging::thereIsNothingToPageAtFirst()
{
    Strip strip;
    strip.act(NextPage, numbers(12));
    strip.act(PreviousPage, numbers(12));
    QCOMPARE(strip.shown(), u(". . . . ."));
    QCOMPARE(strip.mapped(), u("none none none none none"));
}

void tst_CandidatePaging::nothingHappensWithoutAMapper_data()
{
    QTest::addColumn<int>("step");

    QTest::newRow("setNewPinYin") << int(ShowList);
    QTest::newRow("nextPage") << int(NextPage);
    QTest::newRow("prePage") << int(PreviousPage);
    QTest::newRow("clearPinYin") << int(ClearCandidates);
    QTest::newRow("clearPinYin, all") << int(ClearAll);
}

void tst_CandidatePaging::nothingHappensWithoutAMapper()
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

void tst_CandidatePaging::aClickSendsWhatTheLabelShows()
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

QTEST_MAIN(tst_CandidatePaging)
#include "tst_CandidatePaging.moc"
