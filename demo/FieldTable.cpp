// SPDX-License-Identifier: MIT
#include "FieldTable.h"

#include <QDoubleValidator>
#include <QRegularExpressionValidator>

namespace {

// clang-format off
const char anyBlock[] = "[A-Z0-9.,$ -]*";
const char axisWords[] = "-?([ABCFGUVWXYZ][0-9]{1,4}(\\.[0-9]{0,3})? ?){1,4}";

const FieldRule fieldRules[] = {
    // name          label                  unit      value       keypad          base
    //     minimum      maximum     pattern    maxLength  masked  readOnly
    { "X",         "X",                   "mm",     "125.340",  Keypad::Number,   10,
          "-9999.999", "9999.999", nullptr,   10, false, false },
    { "Y",         "Y",                   "mm",     "-48.007",  Keypad::Number,   10,
          "-9999.999", "9999.999", nullptr,   10, false, false },
    { "Z",         "Z",                   "mm",     "310.000",  Keypad::Number,   10,
          "-9999.999", "9999.999", nullptr,   10, false, false },
    { "spindle",   "主轴 Spindle",        "r/min",  "1200",     Keypad::Number,   10,
          "0",         "8000",     nullptr,    8, false, false },
    { "feed",      "进给 Feed",           "mm/min", "250.0",    Keypad::Number,   10,
          "0.0",       "6000.0",   nullptr,    8, false, false },
    { "axisWord",  "轴字 Axis word",      nullptr,  "X100.",    Keypad::Axis,     10,
          nullptr,     nullptr,    axisWords, 16, false, false },

    { "block",     "程序段 Block",        nullptr,  "N30 G01 X40.5 Y-12.", Keypad::GCode, 10,
          nullptr,     nullptr,    anyBlock,  48, false, false },

    { "offset",    "刀补 Offset",         "mm",     "0.000",    Keypad::Number,   10,
          "-999.999",  "999.999",  nullptr,    8, false, false },

    { "parameter", "参数 Parameter 3111", "hex",    "00A0",     Keypad::Number,   16,
          "0",         "FFFF",     nullptr,    4, false, false },
    { "mask",      "输入屏蔽 Input mask", "bin",    "00001111", Keypad::Number,    2,
          "0",         "11111111", nullptr,    8, false, false },
    { "password",  "密码 Password",       "",       "",         Keypad::Number,   10,
          "0",         "999999",   nullptr,    6, true, false },

    { "comment",   "程序注释 Comment",    nullptr,  "Flange 80 x 12", Keypad::Text, 10,
          nullptr,     nullptr,    nullptr,   24, false, false },
    { "operator",  "操作员 Operator",     nullptr,  "Shift 1",  Keypad::Text,     10,
          nullptr,     nullptr,    nullptr,   16, false, false },
    { "date",      "日期 Date",           nullptr,  "2024-02-28", Keypad::DateTime, 10,
          nullptr,     nullptr,    nullptr,   10, false, false },
    { "time",      "时间 Time",           nullptr,  "08:30:00", Keypad::DateTime, 10,
          nullptr,     nullptr,    nullptr,     8, false, false },
    { "service",   "下次保养 Service",    nullptr,  "2024-06-01 07:00:00", Keypad::DateTime, 10,
          nullptr,     nullptr,    nullptr,   19, false, false },
    { "parts",     "工件数 Parts",        nullptr,  "1284",     Keypad::Number,   10,
          "0",         "999999",   nullptr,    6, false, true }
};
// clang-format on

double number(const char *text)
{
    return QString::fromLatin1(text).toDouble();
}

QValidator *createPattern(const QString &pattern, QObject *parent)
{
    return new QRegularExpressionValidator(QRegularExpression(pattern), parent);
}

QValidator *createRange(const FieldRule &rule, QObject *parent)
{
    const double minimum = number(rule.minimum);
    const double maximum = number(rule.maximum);
    if (decimals(rule) == 0)
        return new QIntValidator(int(minimum), int(maximum), parent);
    QDoubleValidator *range = new QDoubleValidator(minimum, maximum, decimals(rule), parent);
    range->setNotation(QDoubleValidator::StandardNotation);
    range->setLocale(QLocale::c()); // the keypad's point is a point in every language
    return range;
}

} // namespace

const FieldRule &fieldRule(const char *name)
{
    for (const FieldRule &rule : fieldRules) {
        if (qstrcmp(name, rule.name) == 0)
            return rule;
    }
    qFatal("There is no rule \"%s\"", name);
    return fieldRules[0];
}

int decimals(const FieldRule &rule)
{
    return QString::fromLatin1(rule.maximum).section(QLatin1Char('.'), 1).length();
}

QString limitText(const FieldRule &rule)
{
    if (!rule.maximum || rule.masked)
        return QString();
    return QString::fromUtf8("%1 … %2 %3")
        .arg(QLatin1String(rule.minimum), QLatin1String(rule.maximum), QLatin1String(rule.unit));
}

QValidator *createValidator(const FieldRule &rule, QObject *parent)
{
    if (rule.pattern)
        return createPattern(QLatin1String(rule.pattern), parent);
    if (!rule.maximum)
        return nullptr;
    switch (rule.base) {
    case 2:
        return createPattern(QString::fromLatin1("[01]{1,%1}").arg(rule.maxLength), parent);
    case 16:
        return createPattern(QString::fromLatin1("[0-9A-F]{1,%1}").arg(rule.maxLength), parent);
    default:
        return createRange(rule, parent);
    }
}
