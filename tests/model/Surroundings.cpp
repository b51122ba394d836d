// SPDX-License-Identifier: MIT
#include "Surroundings.h"

#include "support/QtDifferences.h"
#include "support/Text.h"

#include <HMIDevice/HMIDeviceInfo.h>

#include <QApplication>
#include <QDoubleValidator>
#include <QIntValidator>

namespace {

// clang-format off
const QRect viewPlaces[] = {
    QRect(0, 0, 640, 480), QRect(0, 0, 800, 480), QRect(30, 20, 480, 272), QRect(-15, 7, 800, 600),
    QRect(100, 0, 272, 480), QRect(0, 60, 600, 800)
};

const QRect targetPlaces[] = {
    QRect(100, 50, 200, 80), QRect(0, 0, 480, 272), QRect(10, 20, 160, 120), QRect(-40, -30, 300, 100)
};
// clang-format on

const int shortTarget = 5; // characters

// Leaves texts that are not acceptable as they are: when an edit line has one mended differs from
// one version of Qt to the other.
class WholeNumbers : public QIntValidator
{
public:
    WholeNumbers(int minimum, int maximum)
        : QIntValidator(minimum, maximum, nullptr)
    {
    }

    void fixup(QString &) const override { }
};

class Decimals : public QDoubleValidator
{
public:
    Decimals()
        : QDoubleValidator(-99.5, 1000, 2, nullptr)
    {
    }

    void fixup(QString &) const override { }
};

class NumberLike : public QValidator
{
public:
    NumberLike()
        : QValidator(nullptr)
    {
    }

    // At most one point, and a minus sign only in front.
    State validate(QString &input, int &) const override
    {
        const bool right =
            input.count(QLatin1Char('.')) <= 1 && input.lastIndexOf(QLatin1Char('-')) <= 0;
        return right ? Acceptable : Invalid;
    }
};

class Nothing : public QValidator
{
public:
    Nothing()
        : QValidator(nullptr)
    {
    }

    State validate(QString &, int &) const override { return Invalid; }
};

// Writes every text in capitals.
class Capitals : public QValidator
{
public:
    Capitals()
        : QValidator(nullptr)
    {
    }

    State validate(QString &input, int &) const override
    {
        input = input.toUpper();
        return Acceptable;
    }
};

// Is not content before there are three characters.
class ThreeCharacters : public QValidator
{
public:
    ThreeCharacters()
        : QValidator(nullptr)
    {
    }

    State validate(QString &input, int &) const override
    {
        return input.size() < 3 ? Intermediate : Acceptable;
    }
};

// A window that comes while a keypad is shown would take the keyboard from it; one may go.
void show(QWidget *widget, bool visible)
{
    if (!visible || !QApplication::activeModalWidget())
        widget->setVisible(visible);
}

// The object that has no such property has one added by the first writing, which nobody counts.
int timesWritten(const QObject *target)
{
    const Written *const field = dynamic_cast<const Written *>(target);
    return field ? field->times : 0;
}

} // namespace

QString Written::taken(const QString &text, const QString &before)
{
    ++times;
    if (whenWritten == RefuseIt)
        return before;
    return whenWritten == TakeIt ? text : text.toUpper();
}

Surroundings::Surroundings()
{
    setDeviceType(1);
    for (QGraphicsView &view : m_views) {
        view.setGeometry(viewPlaces[0]);
        view.show();
    }
    registerView(0);
    m_world.targets.resize(targetCount);
    for (int i = 0; i < targetCount; ++i)
        m_targets[i] = newTarget(i);
}

Surroundings::~Surroundings()
{
    for (QObject *target : m_targets)
        delete target;
    HMIDeviceInfo::setGraphicsView(nullptr);
    HMIDeviceInfo::setDeviceInfo(1, QSize());
}

void Surroundings::setDeviceType(int type)
{
    HMIDeviceInfo::setDeviceInfo(type, QSize(640, 480));
    m_world.deviceType = type;
}

void Surroundings::registerView(int index)
{
    HMIDeviceInfo::setGraphicsView(index < viewCount ? &m_views[index] : nullptr);
}

void Surroundings::changeView(int index, int place, int look)
{
    QGraphicsView *view = &m_views[index % viewCount];
    const int count = int(sizeof(viewPlaces) / sizeof(viewPlaces[0]));
    view->setFrameShape(look % 2 ? QFrame::NoFrame : QFrame::StyledPanel);
    view->setLineWidth(1 + look % 7);
    view->setGeometry(viewPlaces[place % count]);
    show(view, look % 5 != 0);
}

void Surroundings::block(int target)
{
    m_targets[target]->blockSignals(true);
    m_world.targets[target].blocked = true;
}

void Surroundings::setWhenWritten(int target, WhenWritten what)
{
    Written *const field = dynamic_cast<Written *>(m_targets[target]);
    if (!field)
        return;
    field->whenWritten = what;
    m_world.targets[target].whenWritten = what;
}

void Surroundings::renewTarget(int index)
{
    delete m_targets[index];
    m_targets[index] = newTarget(index);
}

void Surroundings::moveTarget(int index, int place, int parent)
{
    QWidget *widget = qobject_cast<QWidget *>(m_targets[index]);
    if (!widget)
        return;
    const int count = int(sizeof(targetPlaces) / sizeof(targetPlaces[0]));
    widget->setParent(parent % 3 == 2 ? nullptr : m_views[parent % 3].viewport());
    widget->setGeometry(targetPlaces[place % count]);
    show(widget, parent % 5 == 0);
}

ViewPlace Surroundings::viewPlace() const
{
    const QGraphicsView *view = HMIDeviceInfo::graphicsView();
    if (!view)
        return { false, QPoint(), QRect() };
    const QWidget *viewport = view->viewport();
    return { true, viewport->mapToGlobal(QPoint(0, 0)), viewport->geometry() };
}

TargetPlace Surroundings::targetPlace(int index) const
{
    const QWidget *widget = index < 0 ? nullptr : qobject_cast<QWidget *>(m_targets[index]);
    if (!widget)
        return { false, QPoint(), QRect() };
    return { widget->parentWidget() != nullptr, widget->mapToGlobal(QPoint(0, 0)),
             widget->geometry() };
}

QStringList Surroundings::seenTargets() const
{
    QStringList list;
    for (const QObject *target : m_targets)
        list << seenTarget(target->property("text").toString(), timesWritten(target),
                           target->signalsBlocked());
    return list;
}

const QValidator *Surroundings::validator(int index)
{
    static const WholeNumbers hundred(0, 100), signedRange(-50, 999);
    static const NumberLike numberLike;
    static const Nothing nothing;
    static const Capitals capitals;
    static const ThreeCharacters threeCharacters;
    static const Decimals decimals;
    static const QtDifferences::PatternValidator pattern(
        QtDifferences::Pattern(u("[A-Z]{0,3}(-?[0-9]*)?")), nullptr);
    static const QValidator *const list[] = { nullptr,   &hundred, &signedRange,     &numberLike,
                                              nullptr,   &nothing, &threeCharacters, &capitals,
                                              &decimals, &pattern };
    return list[index];
}

QValidator *Surroundings::newValidator()
{
    return new Nothing;
}

QObject *Surroundings::newTarget(int index)
{
    m_world.targets[index] = { QString(),
                               32767,
                               false,
                               index != 2,
                               index == 3 || index == 4,
                               index == 2 ? TakeItUncounted : TakeIt,
                               0 };
    switch (index) {
    case 1: {
        QLabel *label = new WrittenLabel;
        label->setGeometry(targetPlaces[0]);
        return label;
    }
    case 2:
        return new QObject;
    case 3:
        return inView(new DateTimeField);
    case 4:
        return inView(new DerivedField);
    case 5: {
        QLineEdit *field = inView(new WrittenField);
        field->setMaxLength(shortTarget);
        m_world.targets[index].maxLength = shortTarget;
        return field;
    }
    default:
        return inView(new WrittenField);
    }
}

QLineEdit *Surroundings::inView(QLineEdit *field)
{
    field->setParent(m_views[0].viewport());
    field->setGeometry(targetPlaces[0]);
    return field;
}
