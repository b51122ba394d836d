// SPDX-License-Identifier: MIT
#include "Script.h"

#include <HMIDevice/HMIDeviceInfo.h>

namespace {

// clang-format off

const Step numbers[] = {
    { Action::OpenPage,   "POS", nullptr, "position-page" },
    { Action::TapField,   "spindle", nullptr, "spindle-keypad-opens-with-limits" },
    { Action::SeeDimmed,  "A B C D E F .", nullptr, nullptr },
    { Action::TapKeys,    "2 5 0 0", nullptr, "spindle-2500-typed" },
    { Action::SeeEntry,   "2500", nullptr, nullptr },
    { Action::TapKeys,    "Enter", nullptr, "spindle-2500-entered" },
    { Action::SeeField,   "spindle", "2500", nullptr },

    { Action::TapField,   "Y", nullptr, "y-keypad-opens" },
    { Action::TapKeys,    "1 2 . 5", nullptr, "y-12.5-typed" },
    { Action::TapKeys,    "+/-", nullptr, "y-turned-negative" },
    { Action::SeeEntry,   "-12.5", nullptr, nullptr },
    { Action::TapKeys,    "Enter", nullptr, "y-entered" },
    { Action::SeeField,   "Y", "-12.5", nullptr },

    { Action::TapField,   "spindle", nullptr, nullptr },
    { Action::TapKeys,    "9 0 0 0 0", nullptr, "spindle-fifth-digit-refused" },
    { Action::SeeEntry,   "9000", nullptr, nullptr },
    { Action::TapKeys,    "Enter", nullptr, "spindle-above-the-limit-turned-back" },
    { Action::SeeMessage, "0 … 8000", nullptr, nullptr },
    { Action::SeeField,   "spindle", "2500", nullptr },

    { Action::TapField,   "X", nullptr, nullptr },
    { Action::TapKeys,    "4 . 7 .", nullptr, "x-second-point-refused" },
    { Action::SeeEntry,   "4.7", nullptr, nullptr },
    { Action::TapKeys,    "← ← BSP 8 Enter", nullptr, "x-corrected-with-the-arrows" },
    { Action::SeeField,   "X", "8.7", nullptr },

    { Action::TapField,   "feed", nullptr, nullptr },
    { Action::PressKeys,  "3 2 9 Backspace 0 . 5", nullptr, "feed-typed-on-hard-keys" },
    { Action::SeeEntry,   "320.5", nullptr, nullptr },
    { Action::PressKeys,  "Return", nullptr, "feed-entered-with-return" },
    { Action::SeeField,   "feed", "320.5", nullptr },

    { Action::TapField,   "Z", nullptr, nullptr },
    { Action::TapKeys,    "9 9 9", nullptr, "z-999-typed" },
    { Action::PressKeys,  "Escape", nullptr, "z-left-as-it-was-by-escape" },
    { Action::SeeField,   "Z", "310.000", nullptr },

    { Action::OpenPage,   "OFFSET", nullptr, "offset-page" },
    { Action::TapField,   "T03.1", nullptr, "offset-keypad-opens" },
    { Action::TapKeys,    "1 4 . 1 5 +/- Enter", nullptr, "offset-entered" },
    { Action::SeeField,   "T03.1", "-14.15", nullptr },

    { Action::OpenPage,   "PARAM", nullptr, "parameter-page" },
    { Action::TapField,   "parameter", nullptr, "hexadecimal-keypad-opens" },
    { Action::SeeDimmed,  "+/- .", nullptr, nullptr },
    { Action::TapKeys,    "C 0 F E 1", nullptr, "hexadecimal-typed-fifth-digit-refused" },
    { Action::SeeEntry,   "C0FE", nullptr, nullptr },
    { Action::TapKeys,    "Enter", nullptr, "hexadecimal-entered" },
    { Action::SeeField,   "parameter", "C0FE", nullptr },

    { Action::TapField,   "mask", nullptr, "binary-keypad-opens" },
    { Action::SeeDimmed,  "2 3 4 5 6 7 8 9 A B C D E F +/- .", nullptr, nullptr },
    { Action::TapKeys,    "1 0 1 0 0 1 0 1", nullptr, "binary-typed" },
    { Action::TapKeys,    "Enter", nullptr, "binary-entered-lamps-follow" },
    { Action::SeeField,   "mask", "10100101", nullptr },

    { Action::TapField,   "password", nullptr, "password-keypad-opens" },
    { Action::TapKeys,    "3 1 4 1 5", nullptr, "password-typed-masked" },
    { Action::SeeMask,    "31415", nullptr, nullptr },
    { Action::TapKeys,    "Enter", nullptr, "password-entered-masked" },
    { Action::SeeField,   "password", "31415", nullptr }
};

const Step handedOnKey[] = {
    { Action::OpenPage,   "POS", nullptr, nullptr },
    { Action::TapField,   "spindle", nullptr, nullptr },
    { Action::TapKeys,    "7 7", nullptr, "spindle-77-typed-on-a-panel-of-type-13" },
    { Action::PressKeys,  "F1", nullptr, "f1-handed-on-spindle-as-it-was" },
    { Action::SeeMessage, "F1", nullptr, nullptr },
    { Action::SeeField,   "spindle", "2500", nullptr }
};

const Step programs[] = {
    { Action::OpenPage,   "PROG", nullptr, "program-page" },
    { Action::TapField,   "block", nullptr, "g-code-keypad-over-the-line" },
    { Action::SeeCover,   "block", nullptr, nullptr },
    { Action::TapKeys,    "N 3 0 └──┘ G 0 3 └──┘ X 4 0 . 5 └──┘ Y - 8 . └──┘ R 1 2 .", nullptr,
          "g-code-line-typed" },
    { Action::SeeEntry,   "N30 G03 X40.5 Y-8. R12.", nullptr, nullptr },
    { Action::TapKeys,    "Enter", nullptr, "g-code-line-entered" },
    { Action::SeeField,   "block", "N30 G03 X40.5 Y-8. R12.", nullptr },

    { Action::OpenPage,   "POS", nullptr, nullptr },
    { Action::TapField,   "axisWord", nullptr, "axis-keypad-opens" },
    { Action::TapKeys,    "Z 2 5 . 5", nullptr, "axis-word-typed" },
    { Action::TapKeys,    "-", nullptr, "axis-word-signed" },
    { Action::SeeEntry,   "-Z25.5", nullptr, nullptr },
    { Action::TapKeys,    "Enter", nullptr, "axis-word-entered" },
    { Action::SeeField,   "axisWord", "-Z25.5", nullptr }
};

const Step texts[] = {
    { Action::OpenPage,   "SYSTEM", nullptr, "system-page" },
    { Action::TapField,   "operator", nullptr, "character-keypad-opens" },
    { Action::TapKeys,    "caps L", nullptr, nullptr },
    { Action::TapKeys,    "CAPS a t e", nullptr, "operator-late-typed" },
    { Action::TapKeys,    "Space caps S CAPS h i f t", nullptr, "operator-typed-with-capitals" },
    { Action::SeeEntry,   "Late Shift", nullptr, nullptr },
    { Action::TapKeys,    "Enter", nullptr, "operator-entered" },
    { Action::SeeField,   "operator", "Late Shift", nullptr },

    { Action::TapField,   "comment", nullptr, nullptr },
    { Action::TapKeys,    "caps R CAPS o u g h Space *#", nullptr, "symbols-shown" },
    { Action::TapKeys,    "&& << Space f i n i s h Space *# # 1", nullptr,
          "comment-typed-with-ampersand" },
    { Action::SeeEntry,   "Rough & finish #1", nullptr, nullptr },
    { Action::TapKeys,    "<<", nullptr, nullptr },
    { Action::TapKeys,    "Enter", nullptr, "comment-entered" },
    { Action::SeeField,   "comment", "Rough & finish #1", nullptr }
};

const Step chineseTexts[] = {
    { Action::TapField,   "comment", nullptr, nullptr },
    { Action::TapKeys,    "CN", nullptr, "chinese-keys-shown" },
    { Action::TapKeys,    "s k j c", nullptr, "skjc-typed" },
    { Action::TapKeys,    "数控机床", nullptr, "candidate-taken" },
    { Action::TapKeys,    "z h u", nullptr, "zhu-typed" },
    { Action::SeeKeys,    "主", nullptr, nullptr },
    { Action::TapKeys,    ">", nullptr, "zhu-second-page" },
    { Action::MissKeys,   "主", nullptr, nullptr },
    { Action::TapKeys,    "<", nullptr, "zhu-first-page-again" },
    { Action::SeeKeys,    "主", nullptr, nullptr },
    { Action::TapKeys,    "z h o u", nullptr, "zhuzhou-typed" },
    { Action::TapKeys,    "主轴", nullptr, "second-candidate-taken" },
    { Action::SeeEntry,   "数控机床主轴", nullptr, nullptr },
    { Action::TapKeys,    "EN Enter", nullptr, "chinese-comment-entered" },
    { Action::SeeField,   "comment", "数控机床主轴", nullptr }
};

const Step dates[] = {
    { Action::TapField,   "date", nullptr, "date-keypad-opens" },
    { Action::TapPart,    "2", nullptr, nullptr },
    { Action::TapKeys,    "+", nullptr, "date-29-february-of-a-leap-year" },
    { Action::SeeEntry,   "2024-02-29", nullptr, nullptr },
    { Action::TapPart,    "0", nullptr, nullptr },
    { Action::TapKeys,    "+", nullptr, "date-28-february-of-the-next-year" },
    { Action::TapKeys,    "Ok", nullptr, "date-entered" },
    { Action::SeeField,   "date", "2025-02-28", nullptr },

    { Action::TapField,   "time", nullptr, "time-keypad-opens" },
    { Action::TapPart,    "4", nullptr, nullptr },
    { Action::TapKeys,    "Delete Delete", nullptr, "time-without-minutes-is-marked" },
    { Action::TapKeys,    "4 5 Ok", nullptr, "time-entered" },
    { Action::SeeField,   "time", "08:45:00", nullptr },

    { Action::TapField,   "service", nullptr, "date-and-time-keypad-opens" },
    { Action::TapPart,    "1", nullptr, nullptr },
    { Action::TapKeys,    "+", nullptr, nullptr },
    { Action::TapPart,    "3", nullptr, nullptr },
    { Action::TapKeys,    "+", nullptr, "date-and-time-changed" },
    { Action::TapKeys,    "Ok", nullptr, "date-and-time-entered" },
    { Action::SeeField,   "service", "2024-07-01 08:00:00", nullptr },

    { Action::TapField,   "service", nullptr, nullptr },
    { Action::TapKeys,    "+ Cancel", nullptr, "date-and-time-left-as-it-was-by-cancel" },
    { Action::SeeField,   "service", "2024-07-01 08:00:00", nullptr }
};

// clang-format on

template <int count>
void append(QVector<Step> *steps, const Step (&section)[count])
{
    for (const Step &step : section)
        steps->append(step);
}

} // namespace

QVector<Step> sessionSteps(bool withDictionary)
{
    QVector<Step> steps;
    append(&steps, numbers);
    if (HMIDeviceInfo::deviceType() == 13)
        append(&steps, handedOnKey);
    append(&steps, programs);
    append(&steps, texts);
    if (withDictionary)
        append(&steps, chineseTexts);
    append(&steps, dates);
    return steps;
}
