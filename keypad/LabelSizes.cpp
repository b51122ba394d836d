// SPDX-License-Identifier: MIT
#include "LabelSizes_p.h"

#include <QAbstractButton>
#include <QEvent>
#include <QFont>
#include <QTextBoundaryFinder>
#include <QWidget>

namespace Keypad {

namespace {

const int unknownSize = 0;

bool isShown(SizedLabel *label)
{
    const QWidget *widget = label->widget();
    const QWidget *parent = widget->parentWidget();
    return !widget->isHidden() && (parent->isWindow() || parent->isVisibleTo(parent->window()));
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

// Labels that share a size.
struct Group
{
    QFont font;
    bool showsWords;
    int size;
};

// Qt 5 has two ways to say the same family, which make equal fonts differ: their descriptions are
// the same.
bool areAlike(const QFont &one, const QFont &other)
{
    return one == other || one.toString() == other.toString();
}

Group &groupOf(SizedLabel *label, QVector<Group> *groups)
{
    const QFont font = label->widget()->font();
    const bool showsWord = isWord(label->label());
    for (int i = 0; i < groups->size(); ++i) {
        if (groups->at(i).showsWords == showsWord && areAlike(groups->at(i).font, font))
            return (*groups)[i];
    }
    const Group group = { font, showsWord, SizedLabel::anySize };
    groups->append(group);
    return groups->last();
}

} // namespace

SizedLabel::~SizedLabel()
{
    if (m_sizes)
        m_sizes->remove(this);
}

void SizedLabel::shareLabelSize(const QSharedPointer<LabelSizes> &sizes)
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
    const Member member = { label, QString(), false, SizedLabel::anySize, unknownSize };
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

// Asked of all members whenever one is painted: hence the look at where a text lies, which is the
// same place while it has not been set anew.
bool LabelSizes::isMeasured(const Member &member)
{
    if (member.sharedSize == unknownSize || member.isShown != isShown(member.label))
        return false;
    const QString label = member.label->label();
    return label.constData() == member.text.constData() || label == member.text;
}

void LabelSizes::measure(Member *member)
{
    SizedLabel *label = member->label;
    member->isShown = isShown(label);
    member->text = label->label();
    member->wholeSize = member->isShown ? label->wholeLabelSize() : int(SizedLabel::anySize);
    member->sharedSize = unknownSize;
    m_isCurrent = false;
}

void LabelSizes::share()
{
    m_isCurrent = true;
    QVector<Group> groups;
    for (int i = 0; i < m_members.size(); ++i) {
        Group &group = groupOf(m_members.at(i).label, &groups);
        if (m_members.at(i).wholeSize != SizedLabel::noSize)
            group.size = qMin(group.size, m_members.at(i).wholeSize);
    }
    for (int i = 0; i < m_members.size(); ++i) {
        Member &member = m_members[i];
        const int size = groupOf(member.label, &groups).size;
        if (member.sharedSize != unknownSize && member.sharedSize != size)
            member.label->widget()->update();
        member.sharedSize = size;
    }
}

void shareLabelSizes(const QList<QWidget *> &parts)
{
    const QSharedPointer<LabelSizes> keySizes(new LabelSizes);
    const QSharedPointer<LabelSizes> fieldSizes(new LabelSizes);
    for (QWidget *part : parts) {
        if (SizedLabel *label = dynamic_cast<SizedLabel *>(part))
            label->shareLabelSize(qobject_cast<QAbstractButton *>(part) ? keySizes : fieldSizes);
    }
}

} // namespace Keypad
