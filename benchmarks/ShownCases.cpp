// SPDX-License-Identifier: MIT
#include "BareKeypad.h"
#include "Bench.h"
#include "Cases.h"
#include "Kinds.h"

#include <HMIDevice/HMIDeviceInfo.h>

#include <QCoreApplication>
#include <QEvent>
#include <QGraphicsView>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSpinBox>
#include <QToolButton>
#include <QWindow>

#include <memory>

namespace {

const double mostOfPainting = 1.15;
const int shownRounds = 100;
const int tapRounds = 300;

const QSize screens[] = { QSize(480, 272), QSize(800, 480) };

// Sees that something is painted.
class PaintWatch : public QObject
{
public:
    PaintWatch()
        : m_isPainted(false)
    {
    }

    void watch(QWidget *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        m_isPainted = m_isPainted || event->type() == QEvent::Paint;
        return false;
    }

    void waitForPaint()
    {
        while (!m_isPainted)
            QCoreApplication::processEvents();
        QCoreApplication::processEvents(); // what painting has asked for
        m_isPainted = false;
    }

private:
    bool m_isPainted;
};

// A keypad and its bare dialog, each on the whole of the same screen.
class Pair
{
public:
    Pair(const Kind &kind, QSize screen)
        : m_kind(kind)
        , m_screen(screen)
        , m_shape(*makeEnabled(kind))
    {
        m_view.setFrameStyle(QFrame::NoFrame);
        m_view.setGeometry(QRect(QPoint(), screen));
        m_view.show();
        QCoreApplication::processEvents();
        HMIDeviceInfo::setGraphicsView(&m_view);
    }

    ~Pair() { HMIDeviceInfo::setGraphicsView(nullptr); }

    void makeKeypad()
    {
        m_keypad = makeEnabled(m_kind);
        placeAndWatch(m_keypad.get());
    }

    void makeBare()
    {
        m_bare.reset(m_shape.create());
        m_shape.dress(m_bare.get());
        placeAndWatch(m_bare.get());
    }

    void removeKeypad() { m_keypad.reset(); }
    void removeBare() { m_bare.reset(); }

    void showUntilPainted(QDialog *dialog)
    {
        dialog->show();
        m_watch.waitForPaint();
    }

    QString row(const char *what) const
    {
        return QString::fromLatin1("%1: %2, %3x%4")
            .arg(QLatin1String(m_kind.name), QLatin1String(what))
            .arg(m_screen.width())
            .arg(m_screen.height());
    }

    QDialog *keypad() const { return m_keypad.get(); }
    QDialog *bare() const { return m_bare.get(); }
    PaintWatch *watch() { return &m_watch; }

private:
    // The G-code keypad does not cover the view by itself.
    void placeAndWatch(QDialog *dialog)
    {
        dialog->setGeometry(QRect(QPoint(), m_screen));
        m_watch.watch(dialog);
    }

    const Kind &m_kind;
    QSize m_screen;
    BareKeypad m_shape;
    std::unique_ptr<QDialog> m_keypad, m_bare;
    QGraphicsView m_view;
    PaintWatch m_watch;
};

void showFirst(Bench &bench, const Kind &kind, QSize screen)
{
    Pair pair(kind, screen);
    bench.compare({ pair.row("first shown until painted"), mostOfPainting, shownRounds },
                  { [&] { pair.makeKeypad(); }, [&] { pair.showUntilPainted(pair.keypad()); },
                    [&] {
                        pair.removeKeypad();
                    } },
                  { [&] { pair.makeBare(); }, [&] { pair.showUntilPainted(pair.bare()); },
                    [&] {
                        pair.removeBare();
                    } });
}

void showAgain(Bench &bench, const Kind &kind, QSize screen)
{
    Pair pair(kind, screen);
    pair.makeKeypad();
    pair.makeBare();
    bench.compare({ pair.row("shown again until painted"), mostOfPainting, shownRounds },
                  { doNothing, [&] { pair.showUntilPainted(pair.keypad()); },
                    [&] {
                        pair.keypad()->hide();
                    } },
                  { doNothing, [&] { pair.showUntilPainted(pair.bare()); },
                    [&] {
                        pair.bare()->hide();
                    } });
}

// Taps

void send(QWidget *widget, QEvent::Type type)
{
    QWidget *window = widget->window();
    const QPoint centre = widget->rect().center();
    const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    QMouseEvent event(type, widget->mapTo(window, centre), widget->mapToGlobal(centre),
                      Qt::LeftButton, held, Qt::NoModifier);
    QCoreApplication::sendEvent(window->windowHandle(), &event);
}

void tapUntilPainted(QToolButton *button, PaintWatch *watch)
{
    send(button, QEvent::MouseButtonPress);
    watch->waitForPaint();
    send(button, QEvent::MouseButtonRelease);
    watch->waitForPaint();
}

void empty(const QDialog &dialog)
{
    if (QSpinBox *field = dialog.findChild<QSpinBox *>()) {
        field->setValue(yearBefore);
        lineOf(dialog)->setText(QLatin1String("2026-01-01 00:00:00"));
    } else {
        lineOf(dialog)->clear();
    }
    QCoreApplication::processEvents();
}

// In front, and as before the first tap.
void clear(QDialog *dialog)
{
    dialog->activateWindow();
    if (QSpinBox *field = dialog->findChild<QSpinBox *>())
        field->setFocus();
    empty(*dialog);
}

void tapKind(Bench &bench, const Kind &kind, QSize screen)
{
    Pair pair(kind, screen);
    pair.makeKeypad();
    pair.makeBare();
    connectBareKey(*pair.bare(), kind);
    pair.showUntilPainted(pair.keypad());
    pair.showUntilPainted(pair.bare());
    QString before;
    const auto operation = [&pair, &kind, &before](QDialog *dialog) {
        QToolButton *button = keyOf(*dialog, kind);
        QLineEdit *line = lineOf(*dialog);
        return Operation { [dialog, line, &before] {
                              clear(dialog);
                              before = line->text();
                          },
                           [button, &pair] { tapUntilPainted(button, pair.watch()); },
                           [line, &before] {
                               if (line->text() == before)
                                   qFatal("a tap did nothing");
                           } };
    };
    bench.compare({ pair.row("a tap until repainted"), mostOfPainting, tapRounds },
                  operation(pair.keypad()), operation(pair.bare()));
}

} // namespace

void Cases::show(Bench &bench)
{
    for (const QSize &screen : screens) {
        for (const Kind &kind : kinds) {
            showFirst(bench, kind, screen);
            showAgain(bench, kind, screen);
        }
    }
}

void Cases::tap(Bench &bench)
{
    for (const QSize &screen : screens) {
        for (const Kind &kind : kinds)
            tapKind(bench, kind, screen);
    }
}
