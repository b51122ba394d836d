// SPDX-License-Identifier: MIT
#ifndef LABELSIZES_P_H
#define LABELSIZES_P_H

#include <QList>
#include <QSharedData>
#include <QString>
#include <QVector>

#include <climits>

class QEvent;
class QWidget;

namespace Keypad {

class LabelSizes;

// A widget with a label that is drawn smaller where it does not fit, and no larger than the labels
// that share its size.
class SizedLabel
{
public:
    enum { noSize = 0, anySize = INT_MAX };

    virtual ~SizedLabel();

    virtual QWidget *widget() = 0;

    // The text, or nothing where something else takes its place.
    virtual QString label() const = 0;

    // The largest size in pixels at which the label is whole; anySize where the font's will do,
    // noSize where none does that can be read.
    virtual int wholeLabelSize() const = 0;

    // Once; all labels with the same \a sizes are drawn alike.
    void shareLabelSize(const QExplicitlySharedDataPointer<LabelSizes> &sizes);

protected:
    // \a size, or less if the others say so.
    int sharedLabelSize(int size) const;

    // To be called for every event of the widget: another place, font or style is another size.
    void heed(const QEvent *event);

private:
    QExplicitlySharedDataPointer<LabelSizes> m_sizes;
};

// The sizes at which those labels of a keypad's keys, or of its fields, are drawn that do not fit.
// Those in the same font that are one character share one size, and so do those that are words:
// sizes that follow the width of each label look ragged. A label for which there is no room at any
// size is left out.
class LabelSizes : public QSharedData
{
public:
    LabelSizes();

    void add(SizedLabel *label);
    void remove(const SizedLabel *label);
    void forget(const SizedLabel *label);

    // The largest size in pixels at which \a label and those like it are whole.
    int sharedSize(const SizedLabel *label);

private:
    struct Member
    {
        SizedLabel *label;
        QString text; // as it was measured
        bool showsWord;
        bool isShown;
        int wholeSize;
        int first;      // the place of the first member that shares its size
        int sharedSize; // unknown until the label has been measured and is about to be painted
    };

    int placeOf(const SizedLabel *label) const;
    static bool isMeasured(const Member &member);
    void measure(Member *member);
    int firstLike(int place) const;
    void share();

    QVector<Member> m_members;
    bool m_isCurrent; // no member has changed or gone since the sizes were shared
};

// Lets \a labels share their sizes.
void shareLabelSizes(const QList<SizedLabel *> &labels);

} // namespace Keypad

#endif
