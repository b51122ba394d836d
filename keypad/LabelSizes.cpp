// SPDX-License-Identifier: MIT
#include "LabelSizes_p.h"

#include <QEvent>
#include <QFont>
#include <QTextBoundaryFinder>
#include <QWidget>

namespace Keypad {

namespace {

const int unknownSize = 0;

// A key that an application has taken out of its keypad is no part of what the keypad shows.
bool isShown(SizedLabel *label)
{
    const QWidget *widget = label->widget();
    const QWidget *parent = widget->parentWidget();
    return parent && !widget->isHidden()
        && (parent->isWindow() || parent->isVisibleTo(parent->window()));
}

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

// Qt 5 has two ways to say the same family, which make equal fonts differ: their descriptions are
// the same.
bool areAlike(const QFont &one, const QFont &other)
{
    return one == other || one.toString() == other.toString();
}

} // namespace

SizedLabel::~SizedLabel()
{
    if (m_sizes)
        m_sizes->remove(this);
}

void SizedLabel::shareLabelSize(const QExplicitlySharedDataPointer<LabelSizes> &sizes)
{
    sizes->add(this); // which may fail for want of memory
    m_sizes = sizes;
}

int SizedLabel::sharedLabelSize(int size) const
{
    return m_sizes ? qMin(size, m_sizes->sharedSize(this)) : size;
}

void SizedLabel::heed(const QEvent *event)
{
    switch (event->type()) {
    case QEvent::Resize:
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::EnabledChange: // a style sheet can give a disabled key another border
        if (m_sizes)
            m_sizes->forget(this);
        break;
    default:
        break;
    }
}

LabelSizes::LabelSizes()
    : m_isCurrent(false)
{
}

void LabelSizes::add(SizedLabel *label)
{
    const Member member = { label, QString(), false, false, SizedLabel::anySize, 0, unknownSize };
    m_members.append(member);
}

void LabelSizes::remove(const SizedLabel *label)
{
    const int place = placeOf(label);
    const bool wasShown = m_members.at(place).isShown;
    m_members[place] = m_members.last();
    m_members.pop_back();
    m_isCurrent = false;
    for (int i = 0; wasShown && i < m_members.size(); ++i)
        m_members.at(i).label->widget()->update();
}

void LabelSizes::forget(const SizedLabel *label)
{
    m_members[placeOf(label)].sharedSize = unknownSize;
    m_isCurrent = false;
}

int LabelSizes::sharedSize(const SizedLabel *label)
{
    for (int i = 0; i < m_members.size(); ++i) {
        if (!isMeasured(m_members.at(i)))
            measure(&m_members[i]);
    }
    if (!m_isCurrent)
        share();
    return m_members.at(placeOf(label)).sharedSize;
}

int LabelSizes::placeOf(const SizedLabel *label) const
{
    int place = 0;
    while (m_members.at(place).label != label)
        ++place;
    return place;
}

bool LabelSizes::isMeasured(const Member &member)
{
    return member.sharedSize != unknownSize && member.isShown == isShown(member.label)
        && member.text == member.label->label();
}

void LabelSizes::measure(Member *member)
{
    SizedLabel *label = member->label;
    member->isShown = isShown(label);
    member->text = label->label();
    member->showsWord = isWord(member->text);
    member->wholeSize = member->isShown ? label->wholeLabelSize() : int(SizedLabel::anySize);
    member->sharedSize = unknownSize;
    m_isCurrent = false;
}

// The place of the first label that shares its size with the one at \a place, of which those before
// it know theirs.
int LabelSizes::firstLike(int place) const
{
    const Member &member = m_members.at(place);
    const QFont font = member.label->widget()->font();
    for (int i = 0; i < place; ++i) {
        const Member &other = m_members.at(i);
        if (other.first == i && other.showsWord == member.showsWord
            && areAlike(other.label->widget()->font(), font))
            return i;
    }
    return place;
}

void LabelSizes::share()
{
    m_isCurrent = true;
    QVector<int> sizes(m_members.size(), SizedLabel::anySize);
    for (int i = 0; i < m_members.size(); ++i) {
        Member &member = m_members[i];
        member.first = firstLike(i);
        if (member.wholeSize != SizedLabel::noSize)
            sizes[member.first] = qMin(sizes.at(member.first), member.wholeSize);
    }
    for (int i = 0; i < m_members.size(); ++i) {
        Member &member = m_members[i];
        const int size = sizes.at(member.first);
        if (member.sharedSize != unknownSize && member.sharedSize != size)
            member.label->widget()->update();
        member.sharedSize = size;
    }
}

void shareLabelSizes(const QList<SizedLabel *> &labels)
{
    const QExplicitlySharedDataPointer<LabelSizes> sizes(new LabelSizes);
    for (SizedLabel *label : labels)
        label->shareLabelSize(sizes);
}

} // namespace Keypad
