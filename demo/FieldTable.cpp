// SPDX-License-Identifier: MIT
#include "FieldTable.h"

#include <QDoubleValidator>
#include <QRegularExpressionValidator>

// clang-format off
static const char anyBlock[] = "[A-Z0-9.,$ -]*";
static const char axisWords[] = "-?([ABCFGUVWXYZ][0-9]{1,4}(\\.[0-9]{0,3})? ?){1,4}";

static const FieldRule fieldRules[] = {
    // name          label                  unit      value       keypad          base
    //     minimum      maximum     pattern    maxLength  masked
    { "X",         "X",                   "mm",     "125.340",  Keypad::Number,   10,
          "-9999.999", "9999.999", nullptr,   10, false },
    { "Y",         "Y",                   "mm",     "-48.007",  Keypad::Number,   10,
          "-9999.999", "9999.999", nullptr,   10, false },
    { "Z",         "Z",                   "mm",     "310.000",  Keypad::Number,   10,
          "-9999.999", "9999.999", nullptr,   10, false },
    { "spindle",   "主轴 Spindle",        "r/min",  "1200",     Keypad::Number,   10,
          "0",         "8000",     nullptr,   8,  false },
    { "feed",      "进给 Feed",           "mm/min", "250.0",    Keypad::Number,   10,
          "0.0",       "6000.0",   nullptr,   8,  false },
    { "axisWord",  "轴字 Axis word",      nullptr,  "X100.",    Keypad::Axis,     10,
          nullptr,     nullptr,    axisWords, 16, false },

    { "block",     "程序段 Block",        nullptr,  "N30 G01 X40.5 Y-12.", Keypad::GCode, 10,
          nullptr,     nullptr,    anyBlock,  48, false },

    { "offset",    "刀补 Offset",         "mm",     "0.000",    Keypad::Number,   10,
          "-999.999",  "999.999",  nullptr,   8,  false },

    { "parameter", "参数 Parameter 3111", "hex",    "00A0",     Keypad::Number,   16,
          "0",         "FFFF",     nullptr,   4,  false },
    { "mask",      "输入屏蔽 Input mask", "bin",    "00001111", Keypad::Number,    2,
          "0",         "11111111", nullptr,   8,  false },
    { "password",  "密码 Password",       "",       "",         Keypad::Number,   10,
          "0",         "999999",   nullptr,   6,  true  },

    { "comment",   "程序注释 Comment",    nullptr,  "Flange 80 x 12", Keypad::Text, 10,
          nullptr,     nullptr,    nullptr,   24, false },
    { "operator",  "操作员 Operator",     nullptr,  "Li Wei",   Keypad::Text,     10,
          nullptr,     nullptr,    nullptr,   16, false },
    { "date",      "日期 Date",           nullptr,  "2024-02-28", Keypad::DateTime, 10,
          nullptr,     nullptr,    nullptr,   10, false },
    { "time",      "时间 Time",           nullptr,  "08:30:00", Keypad::DateTime, 10,
          nullptr,     nullptr,    nullptr,    8, false },
    { "service",   "下次保养 Service",    nullptr,  "2024-06-01 07:00:00", Keypad::DateTime, 10,
          nullptr,     nullptr,    nullptr,   19, false }
};
// clang-format on

const FieldRule &fieldRule(const QString &name)
{
    for (const FieldRule &rule : fieldRules) {
        if (name == rule.name)
            return rule;
    }
    qFatal("There is no rule \"%s\"", qPrintable(name));
    return fieldRules[0];
}

int decimals(const FieldRule &rule)
{
    return QString(rule.maximum).section('.', 1).length();
}

QString limitText(const FieldRule &rule)
{
    if (!rule.maximum || rule.masked)
        return QString();
    return QString("%1 … %2 %3").arg(rule.minimum, rule.maximum, rule.unit);
}

static QValidator *createPattern(const QString &pattern, QObject *parent)
{
    return new QRegularExpressionValidator(QRegularExpression(pattern), parent);
}

static QValidator *createRange(const FieldRule &rule, QObject *parent)
{
    if (decimals(rule) == 0)
        return new QIntValidator(QString(rule.minimum).toInt(), QString(rule.maximum).toInt(),
                                 parent);
    QDoubleValidator *range = new QDoubleValidator(
        QString(rule.minimum).toDouble(), QString(rule.maximum).toDouble(), decimals(rule), parent);
    range->setNotation(QDoubleValidator::StandardNotation);
    range->setLocale(QLocale::c()); // the keypad's point is a point in every language
    return range;
}

QValidator *createValidator(const FieldRule &rule, QObject *parent)
{
    if (rule.pattern)
        return createPattern(rule.pattern, parent);
    if (!rule.maximum)
        return nullptr;
    switch (rule.base) {
    case 2:
        return createPattern(QString("[01]{1,%1}").arg(rule.maxLength), parent);
    case 16:
        return createPattern(QString("[0-9A-F]{1,%1}").arg(rule.maxLength), parent);
    default:
        return createRange(rule, parent);
    }
}
