// SPDX-License-Identifier: MIT
#include "PaintedText.h"

#include "support/Text.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QScopedPointer>
#include <QSpinBox>
#include <QTextDocument>

namespace {

const int smallestPixelSize = 8;
const int keyFlags = Qt::TextShowMnemonic;

bool fits(const QSize &size, const QSize &room)
{
    return size.width() <= room.width() && size.height() <= room.height();
}

QRect within(const QRect &rect, const QMargins &around)
{
    return rect.adjusted(around.left(), around.top(), -around.right(), -around.bottom());
}

QMargins sum(const QMargins &a, const QMargins &b)
{
    return QMargins(a.left() + b.left(), a.top() + b.top(), a.right() + b.right(),
                    a.bottom() + b.bottom());
}

// The inside without the pixel that keeps a smaller text off the border.
QSize roomIn(const QWidget *widget, const QMargins &around)
{
    return within(widget->rect(), around).adjusted(1, 1, -1, -1).size();
}

void makeAlike(QWidget *twin, const QWidget *widget)
{
    twin->setObjectName(widget->objectName());
    twin->setPalette(widget->palette());
    twin->setFont(widget->font());
    twin->setEnabled(widget->isEnabled());
    twin->setLayoutDirection(widget->layoutDirection());
    twin->setGeometry(widget->geometry());
    twin->ensurePolished();
}

// The font of a style sheet gives way to another style sheet only.
void setPixelSize(QWidget *twin, int pixels)
{
    QFont font(twin->font());
    font.setPixelSize(pixels);
    if (twin->testAttribute(Qt::WA_StyleSheet))
        twin->setStyleSheet(QString::fromLatin1("* { font-size: %1px }").arg(pixels));
    else
        twin->setFont(font);
    twin->ensurePolished();
}

bool fitsAt(int pixels, QFont font, const QString &text, int flags, const QSize &room)
{
    font.setPixelSize(pixels);
    return fits(QFontMetrics(font).size(flags, text), room);
}

// The largest size up to \a most at which \a text fits \a room, or the smallest that is still
// legible.
int largestPixelSize(int most, const QFont &font, const QString &text, int flags, const QSize &room)
{
    int size = most;
    while (size > smallestPixelSize && !fitsAt(size, font, text, flags, room))
        --size;
    return size;
}

int pixelSizeOf(const QWidget *widget)
{
    return QFontInfo(widget->font()).pixelSize();
}

// Gives \a twin a font of \a pixels, and of its text what fits \a room then.
template <class Twin>
void shrink(Twin *twin, int pixels, int flags, const QSize &room)
{
    setPixelSize(twin, pixels);
    const QFontMetrics metrics(twin->font());
    if (metrics.size(flags, twin->text()).width() > room.width())
        twin->setText(metrics.elidedText(twin->text(), Qt::ElideRight, room.width(), flags));
}

int largestPixelSize(int most, const QToolButton *key, const QMargins &around)
{
    return largestPixelSize(most, key->font(), key->text(), keyFlags, roomIn(key, around));
}

bool fitsAt(int pixels, const QToolButton *key, const QMargins &around)
{
    return fitsAt(pixels, key->font(), key->text(), keyFlags, roomIn(key, around));
}

// Whether a label is more than one character to a reader. "&&" is one ampersand.
template <class Widget>
bool showsWord(const Widget *widget)
{
    return widget->text().length() > 1 && widget->text() != u("&&");
}

// Qt 5 has two ways to say the same family, which only the fonts' descriptions make equal.
bool isSameFont(const QFont &a, const QFont &b)
{
    return a == b || a.toString() == b.toString();
}

// Keys in the same font that show one character have one size, and so have those that show a word;
// but for labels that cannot be whole.
int sharedPixelSize(const QToolButton *key, const QMargins &around)
{
    int size = largestPixelSize(pixelSizeOf(key), key, around);
    if (!fitsAt(size, key, around))
        return size;
    const QList<QToolButton *> keys = key->window()->findChildren<QToolButton *>();
    for (const QToolButton *other : keys) {
        if (other->isVisible() && !other->text().isEmpty() && showsWord(other) == showsWord(key)
            && isSameFont(other->font(), key->font())) {
            const int othersSize = largestPixelSize(size, other, around);
            if (fitsAt(othersSize, other, around))
                size = othersSize;
        }
    }
    return size;
}

// Grown by an even number of pixels, so that a centred text keeps its place among the pixels.
template <class Widget>
QSize unclippedInkSize(Widget *twin)
{
    twin->resize(twin->size() + 2 * twin->sizeHint());
    return inkOf(twin).rect.size();
}

// The indent that a label has inside a frame comes from its font. Makes it one that stays while the
// font gets smaller.
void fixIndent(QLabel *twin)
{
    if (twin->indent() >= 0 || twin->frameWidth() == 0)
        return;
    const int plenty = 100;
    const QSize size = twin->size();
    twin->resize(size + 2 * twin->sizeHint() + QSize(plenty, plenty));
    const QRect indented = inkOf(twin).rect;
    twin->setIndent(plenty);
    const QPoint difference = inkOf(twin).rect.topLeft() - indented.topLeft();
    twin->setIndent(plenty - difference.manhattanLength());
    twin->resize(size);
}

// What the indent of \a twin, set by a number, takes of each side.
QMargins indentOf(const QLabel *twin)
{
    const int indent = qMax(0, twin->indent());
    const Qt::Alignment alignment = twin->alignment();
    return QMargins(alignment & Qt::AlignLeft ? indent : 0, alignment & Qt::AlignTop ? indent : 0,
                    alignment & Qt::AlignRight ? indent : 0,
                    alignment & Qt::AlignBottom ? indent : 0);
}

template <class Widget>
QString complaintAboutInk(Widget *widget, Widget *twin, const QMargins &around)
{
    const Ink ink = inkOf(widget);
    const Ink twinsInk = inkOf(twin);
    if (ink.rect.isEmpty())
        return u("is blank");
    if (!within(widget->rect(), around).contains(ink.rect))
        return u("reaches into its border");
    if (ink.picture != twinsInk.picture)
        return u("is drawn otherwise than by Qt at %1 pixels").arg(twin->font().pixelSize());
    if (ink.rect != twinsInk.rect)
        return u("is out of place");
    if (ink.rect.size() != unclippedInkSize(twin))
        return u("is cut");
    return QString();
}

template <class Widget>
QString complaintAboutFittingText(Widget *widget, Widget *twin, const QMargins &around)
{
    if (pictureOf(widget) != pictureOf(twin))
        return u("differs from a plain one");
    return complaintAboutInk(widget, twin, around);
}

template <class Widget>
QString described(const Widget *widget, const QString &complaint)
{
    if (complaint.isEmpty())
        return QString();
    return QString::fromLatin1("%1 \"%2\", %3x%4 pixels, %5")
        .arg(widget->objectName(), widget->text().left(40))
        .arg(widget->width())
        .arg(widget->height())
        .arg(complaint);
}

bool isRich(const QLabel *label)
{
    return label->textFormat() == Qt::RichText
        || (label->textFormat() == Qt::AutoText && Qt::mightBeRichText(label->text()));
}

// Rich text is drawn smaller as a picture is.
QString complaintAboutSmallRichText(QLabel *label, QLabel *twin, const QMargins &around)
{
    const QRect inside = within(label->rect(), around);
    const Ink ink = inkOf(label);
    const QMargins everythingAround = sum(around, indentOf(twin));
    const QSize needed = within(QRect(QPoint(), twin->sizeHint()), everythingAround).size();
    const QSize room = roomIn(label, everythingAround);
    const double scale =
        qMin(double(room.width()) / needed.width(), double(room.height()) / needed.height());
    twin->resize(twin->sizeHint());
    const QSize wanted = inkOf(twin).rect.size() * scale;
    const QSize difference = ink.rect.size() - wanted;
    if (ink.rect.isEmpty())
        return u("is blank");
    if (!inside.contains(ink.rect))
        return u("reaches into its border");
    if (qAbs(difference.width()) > 2 || qAbs(difference.height()) > 2)
        return u("is not as large as it can be, %1x%2 pixels for %3x%4")
            .arg(ink.rect.width())
            .arg(ink.rect.height())
            .arg(wanted.width())
            .arg(wanted.height());
    return QString();
}

bool isLabelOfField(const QLabel *label)
{
    return !label->parentWidget()->findChildren<QSpinBox *>().isEmpty();
}

// How large a label of Qt's own that is \a twin can be drawn whole; 0 where it cannot be.
int wholePixelSize(QLabel *twin, const QSize &size, const QMargins &around)
{
    const int most = pixelSizeOf(twin);
    if (isRich(twin) || fits(twin->sizeHint(), size))
        return most;
    fixIndent(twin);
    const QSize room = roomIn(twin, sum(around, indentOf(twin)));
    const int pixels = largestPixelSize(most, twin->font(), twin->text(), 0, room);
    return fitsAt(pixels, twin->font(), twin->text(), 0, room) ? pixels : 0;
}

// The labels of fields that show one character have one size, and so have those that show a word;
// but for those that cannot be whole.
int sharedPixelSize(const QLabel *label, const QMargins &around)
{
    int size = pixelSizeOf(label);
    if (!isLabelOfField(label))
        return size;
    const QList<QLabel *> labels = label->parentWidget()->findChildren<QLabel *>();
    for (const QLabel *other : labels) {
        const QScopedPointer<QLabel> twin(newTwin(other));
        const int whole = wholePixelSize(twin.data(), other->size(), around);
        if (whole > 0 && showsWord(other) == showsWord(label)
            && isSameFont(other->font(), label->font()))
            size = qMin(size, whole);
    }
    return size;
}

QString complaintAbout(QLabel *label, QLabel *twin, const QMargins &around)
{
    const int most = sharedPixelSize(label, around);
    if (fits(twin->sizeHint(), label->size()) && (most == pixelSizeOf(label) || isRich(label)))
        return complaintAboutFittingText(label, twin, around);
    fixIndent(twin);
    if (isRich(label))
        return complaintAboutSmallRichText(label, twin, around);
    const QSize room = roomIn(label, sum(around, indentOf(twin)));
    shrink(twin, largestPixelSize(most, twin->font(), twin->text(), 0, room), 0, room);
    return complaintAboutInk(label, twin, around);
}

} // namespace

QImage pictureOf(QWidget *widget)
{
    QImage picture(widget->size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(0);
    widget->render(&picture);
    return picture;
}

Ink inkBetween(const QImage &withText, const QImage &withoutText)
{
    Ink ink;
    for (int y = 0; y < withText.height(); ++y) {
        const auto *with = reinterpret_cast<const QRgb *>(withText.constScanLine(y));
        const auto *without = reinterpret_cast<const QRgb *>(withoutText.constScanLine(y));
        for (int x = 0; x < withText.width(); ++x) {
            if (with[x] != without[x])
                ink.rect |= QRect(x, y, 1, 1);
        }
    }
    ink.picture = withText.copy(ink.rect);
    return ink;
}

QToolButton *newTwin(const QToolButton *key)
{
    QToolButton *twin = new QToolButton(key->parentWidget());
    twin->setText(key->text());
    twin->setDown(key->isDown());
    makeAlike(twin, key);
    return twin;
}

QLabel *newTwin(const QLabel *label)
{
    QLabel *twin = new QLabel(label->text(), label->parentWidget());
    twin->setTextFormat(label->textFormat());
    twin->setAlignment(label->alignment());
    twin->setMargin(label->margin());
    twin->setIndent(label->indent());
    twin->setFrameStyle(label->frameStyle());
    makeAlike(twin, label);
    return twin;
}

QString complaintAbout(QToolButton *key, const QMargins &around)
{
    const QScopedPointer<QToolButton> twin(newTwin(key));
    const int size = sharedPixelSize(key, around);
    if (size == pixelSizeOf(key))
        return described(key, complaintAboutFittingText(key, twin.data(), around));
    shrink(twin.data(), size, keyFlags, roomIn(key, around));
    return described(key, complaintAboutInk(key, twin.data(), around));
}

bool isWhole(const QToolButton *key, const QMargins &around)
{
    return fitsAt(sharedPixelSize(key, around), key, around);
}

bool isWhole(const QLabel *label)
{
    return fits(label->QLabel::sizeHint(), label->size())
        || fitsAt(smallestPixelSize, label->font(), label->text(), 0, roomIn(label, QMargins()));
}

QString complaintAbout(QLabel *label, const QMargins &around)
{
    const QScopedPointer<QLabel> twin(newTwin(label));
    return described(label, complaintAbout(label, twin.data(), around));
}
