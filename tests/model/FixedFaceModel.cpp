// SPDX-License-Identifier: MIT
#include "FixedFaceModel.h"

#include "support/Text.h"

namespace {

const char numericKeys[] = "A 1 2 3 ESC B 4 5 6 BSP C 7 8 9 +/- D E F 0 . ← → Enter";
const char gCodeKeys[] = "I J K L M F G 7 8 9 H R T P U A X 4 5 6 O D E Q V B Y 1 2 3 "
                         ", $ N S W C Z 0 . - ESC BSP ← → Enter └──┘";
const char axisKeys[] = "F G 7 8 9 U A X 4 5 6 V B Y 1 2 3 W C Z 0 . - ← → ESC BSP └─┘ Enter";

// What each number base has no use for.
const struct
{
    int mode;
    const char *disabled;
} editModes[] = {
    { 2, "A 2 3 B 4 5 6 C 7 8 9 +/- D E F ." },
    { 10, "A B C D E F" },
    { 16, "+/- ." },
};

const char editingKeys[] = "← → BSP"; // which are tapped as often as all others

} // namespace

FixedFaceModel::FixedFaceModel(World *world, const Face &face)
    : KeypadModel(world)
    , m_face(face)
{
    const QStringList labels = u(face.keys).split(QLatin1Char(' '));
    for (const QString &label : labels)
        addKey(label);
}

void FixedFaceModel::setObject(int target)
{
    KeypadModel::setObject(target);
    if (target == noTarget)
        return;
    for (int i = 0; i < m_keys.size(); ++i)
        m_keys[i].enabled = true;
}

void FixedFaceModel::setLimitToolTip(const QString &text)
{
    if (!text.isEmpty())
        m_tip = text;
    m_tipShown = !text.isEmpty();
}

int FixedFaceModel::likelyKey(int choice) const
{
    QStringList likely = u(editingKeys).split(QLatin1Char(' '));
    if (m_face.sign)
        likely << u(m_face.sign);
    const QString label = likely.at(choice % int(likely.size()));
    int place = 0;
    while (m_keys.at(place).label != label)
        ++place;
    return place;
}

void FixedFaceModel::act(int key)
{
    const QString label = m_keys.at(key).label;
    if (label == u("Enter"))
        confirm();
    else if (label == u("←"))
        m_line.setCursor(m_line.cursor() - 1);
    else if (label == u("→"))
        m_line.setCursor(m_line.cursor() + 1);
    else if (label == u("ESC"))
        cancel();
    else if (label == u("BSP"))
        m_line.backspace();
    else if (m_face.sign && label == u(m_face.sign))
        m_line.toggleSign();
    else if (m_face.space && label == u(m_face.space))
        m_line.insert(u(" "));
    else
        m_line.insert(label);
}

void FixedFaceModel::setLabelEnabled(const QString &label, bool enabled)
{
    for (int i = 0; i < m_keys.size(); ++i) {
        if (m_keys.at(i).label == label)
            setKeyEnabled(i, enabled);
    }
}

// The numeric keypad, which is new in decimal mode

NumericModel::NumericModel(World *world)
    : FixedFaceModel(world, { numericKeys, nullptr, "+/-" })
{
    setEditMode(10);
}

void NumericModel::setEditMode(int mode)
{
    for (const auto &row : editModes) {
        if (row.mode != mode)
            continue;
        const QStringList labels = u(row.disabled).split(QLatin1Char(' '));
        for (const QString &label : labels)
            setLabelEnabled(label, false);
    }
}

void NumericModel::setDecimalPointEnabled(bool enabled)
{
    setLabelEnabled(u("."), enabled);
}

// The G-code keypad, which lies over its target

GCodeModel::GCodeModel(World *world)
    : FixedFaceModel(world, { gCodeKeys, "└──┘", nullptr })
{
}

// A target that lies in another widget is mapped to the screen by itself, which counts its own
// place twice; and all of it once more by the viewport.
void GCodeModel::open(const ViewPlace &view, const TargetPlace &target)
{
    FixedFaceModel::open({ false, QPoint(), QRect() }, target);
    if (!view.registered || !coversTarget())
        return;
    QRect rect = target.geometry;
    if (target.hasParent)
        rect.translate(target.origin);
    lieAt(rect.translated(view.viewportOrigin), false);
}

bool GCodeModel::coversTarget() const
{
    return target() != noTarget && world()->targets.at(target()).isWidget;
}

// The axis keypad

AxisModel::AxisModel(World *world)
    : FixedFaceModel(world, { axisKeys, "└─┘", "-" })
{
}
