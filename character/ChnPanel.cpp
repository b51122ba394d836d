// SPDX-License-Identifier: MIT
#include "ChnPanel.h"

#include "CharacterKeys_p.h"
#include "ClickLabel.h"
#include "FittedLabel_p.h"
#include "KeyButton_p.h"
#include "KeypadLook_p.h"
#include "KeypadRules_p.h"
#include "QtDifferences_p.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

namespace {

// What each part keeps where the panel is short of room, in pixels: enough for six letters, for one
// character and for a finger.
const int pinyinMinimumWidth = 48;
const int candidateMinimumWidth = 20;
const int pagingMinimumWidth = 24;

// Candidates of any length leave the paging buttons their place.
QToolButton *createPagingButton(QWidget *parent, const char *label, const char *name,
                                const QString &accessibleName)
{
    QToolButton *button = new Keypad::KeyButton(parent, pagingMinimumWidth);
    Keypad::setUpKey(button, QLatin1String(label));
    button->setObjectName(QLatin1String(name));
    QtDifferences::setAccessibleName(button, accessibleName);
    return button;
}

// A candidate is shown as it will be inserted, whatever marks the dictionary has in it.
template <class Label>
Label *createLabel(QWidget *parent, int minimumWidth)
{
    Label *label = new Keypad::FittedLabel<Label>(QString(), parent, minimumWidth, Keypad::oneLine);
    label->setTextFormat(Qt::PlainText);
    label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    Keypad::colourLabel(label);
    return label;
}

} // namespace

ChnPanel::ChnPanel(QWidget *parent)
    : QWidget(parent, Qt::FramelessWindowHint)
    , m_currentPage(0)
    , m_pageCount(0)
{
    m_previousButton = createPagingButton(this, CharacterKeys::previousPageLabel, "previousPageKey",
                                          QCoreApplication::translate("Keypad", "Previous page"));
    m_pinyinLabel = createLabel<QLabel>(this, pinyinMinimumWidth);
    m_pinyinLabel->setObjectName(QLatin1String("pinyinLabel"));
    QHBoxLayout *layout = new QHBoxLayout(this);
    layout->addWidget(m_previousButton);
    layout->addWidget(m_pinyinLabel);
    for (int i = 0; i < PageSize; ++i) {
        m_candidateLabels[i] = createLabel<ClickLabel>(this, candidateMinimumWidth);
        m_candidateLabels[i]->setObjectName(QString::fromLatin1("candidate%1").arg(i + 1));
        layout->addWidget(m_candidateLabels[i]);
    }
    m_nextButton = createPagingButton(this, CharacterKeys::nextPageLabel, "nextPageKey",
                                      QCoreApplication::translate("Keypad", "Next page"));
    layout->addWidget(m_nextButton);
    hide();
}

ChnPanel::~ChnPanel() = default;

ClickLabel *ChnPanel::getClickLabel(short index)
{
    return index >= 0 && index < PageSize ? m_candidateLabels[index] : nullptr;
}

QToolButton *ChnPanel::getToolButton(short index)
{
    switch (index) {
    case 0:
        return m_previousButton;
    case 1:
        return m_nextButton;
    default:
        return nullptr;
    }
}

QLabel *ChnPanel::getPinyinLabel()
{
    return m_pinyinLabel;
}

void ChnPanel::setNewPinYin(const QStringList &list, QSignalMapper *mapper)
{
    if (!mapper || list.isEmpty())
        return;
    m_pageCount = (list.size() + PageSize - 1) / PageSize;
    m_currentPage = 0;
    const int shown = qMin(int(list.size()), int(PageSize));
    for (int i = 0; i < shown; ++i)
        showCandidate(i, list.at(i), mapper);
}

void ChnPanel::clearPinYin(QSignalMapper *mapper, short clearPinyinToo)
{
    if (!mapper)
        return;
    m_currentPage = 0;
    m_pageCount = 0;
    for (int i = 0; i < PageSize; ++i)
        showCandidate(i, QString(), mapper);
    if (clearPinyinToo)
        m_pinyinLabel->clear();
}

void ChnPanel::nextPage(const QStringList &list, QSignalMapper *mapper)
{
    if (mapper && m_currentPage + 1 < m_pageCount)
        showPage(m_currentPage + 1, list, mapper);
}

void ChnPanel::prePage(const QStringList &list, QSignalMapper *mapper)
{
    if (mapper && m_currentPage > 0)
        showPage(m_currentPage - 1, list, mapper);
}

void ChnPanel::showPage(int page, const QStringList &list, QSignalMapper *mapper)
{
    m_currentPage = page;
    for (int i = 0; i < PageSize; ++i)
        showCandidate(i, list.value(page * PageSize + i), mapper);
}

void ChnPanel::showCandidate(int index, const QString &text, QSignalMapper *mapper)
{
    m_candidateLabels[index]->setText(text);
    Keypad::mapKey(mapper, m_candidateLabels[index], text);
}
