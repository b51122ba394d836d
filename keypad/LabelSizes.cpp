// SPDX-License-Identifier: MIT
#include "LabelSizes_p.h"

#include "KeyButton_p.h"

#include <QFont>
#include <QList>
#include <QSharedPointer>
#include <QTextBoundaryFinder>
#include <QToolButton>

namespace Keypad {

namespace {

const int unknownSize = 0;

// A button shows "&&" as one ampersand, and underlines what follows a single one.
QString shownText(const QString &label)
{
    QString shown;
    for (int i = 0; i < label.length(); ++i) {
        if (label.at(i) == QLatin1Char('&') && i + 1 < label.length())
            ++i;
        shown += label.at(i);
    }
    return shown;
}

bool isWord(const QString &label)
{
    const QString shown = shownText(label);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, shown);
    return finder.toNextBoundary() < shown.length();
}

// Keys that share a size. Their font is known by its description: Qt 5 has two ways to say the same
// family, which make equal fonts differ.
struct Group
{
    QString font;
    bool showsWords;
    int size;
};

Group &groupOf(const KeyButton *key, QVector<Group> *groups)
{
    const QString font = key->font().toString();
    const bool showsWord = isWord(key->label());
    for (int i = 0; i < groups->size(); ++i) {
        if (groups->at(i).showsWords == showsWord && groups->at(i).font == font)
            return (*groups)[i];
    }
    const Group group = { font, showsWord, KeyButton::anySize };
    groups->append(group);
    return groups->last();
}

} // namespace

LabelSizes::LabelSizes()
    : m_isComplete(false)
{
}

void LabelSizes::add(KeyButton *key)
{
    const Member member = { key, QString(), false, KeyButton::anySize, unknownSize };
    m_members.append(member);
}

void LabelSizes::remove(KeyButton *key)
{
    m_members.remove(placeOf(key));
    m_isComplete = false;
    for (int i = 0; i < m_members.size(); ++i)
        m_members.at(i).key->update();
}

void LabelSizes::forget(const KeyButton *key)
{
    m_members[placeOf(key)].sharedSize = unknownSize;
}

int LabelSizes::sharedSize(const KeyButton *key)
{
    bool isChanged = !m_isComplete;
    for (int i = 0; i < m_members.size(); ++i) {
        if (measure(&m_members[i]))
            isChanged = true;
    }
    if (isChanged)
        share();
    return m_members.at(placeOf(key)).sharedSize;
}

int LabelSizes::placeOf(const KeyButton *key) const
{
    int place = 0;
    while (m_members.at(place).key != key)
        ++place;
    return place;
}

// Whether something has changed since the last time.
bool LabelSizes::measure(Member *member)
{
    const KeyButton *key = member->key;
    const bool isShown = key->isVisibleTo(key->window());
    if (member->sharedSize != unknownSize && member->isShown == isShown
        && member->label == key->label())
        return false;
    member->isShown = isShown;
    member->label = key->label();
    member->wholeSize = isShown ? key->wholeLabelSize() : int(KeyButton::anySize);
    member->sharedSize = unknownSize;
    return true;
}

void LabelSizes::share()
{
    m_isComplete = true;
    QVector<Group> groups;
    for (int i = 0; i < m_members.size(); ++i) {
        Group &group = groupOf(m_members.at(i).key, &groups);
        if (m_members.at(i).wholeSize != KeyButton::noSize)
            group.size = qMin(group.size, m_members.at(i).wholeSize);
    }
    for (int i = 0; i < m_members.size(); ++i) {
        Member &member = m_members[i];
        const int size = groupOf(member.key, &groups).size;
        if (member.sharedSize != unknownSize && member.sharedSize != size)
            member.key->update();
        member.sharedSize = size;
    }
}

void shareLabelSizes(QWidget *keypad)
{
    const QSharedPointer<LabelSizes> sizes(new LabelSizes);
    const QList<QToolButton *> buttons = keypad->findChildren<QToolButton *>();
    for (QToolButton *button : buttons) {
        if (KeyButton *key = dynamic_cast<KeyButton *>(button))
            key->shareLabelSize(sizes);
    }
}

} // namespace Keypad
