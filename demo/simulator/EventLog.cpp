// SPDX-License-Identifier: MIT
#include "EventLog.h"

#include <QFontDatabase>
#include <QTextOption>

#include <cstdio>

namespace {

const int mostLines = 2000;
const int linePixels = 12;

const QLatin1String warning("warning: ");
const QColor warningColour(0xb2, 0x3c, 0x00);

} // namespace

EventLog::EventLog(QWidget *parent)
    : QPlainTextEdit(parent)
{
    setObjectName(QLatin1String("log"));
    setReadOnly(true);
    setMaximumBlockCount(mostLines);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QFont lineFont = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    lineFont.setPixelSize(linePixels);
    setFont(lineFont);
}

void EventLog::add(const QString &line)
{
    QTextCharFormat format;
    if (line.startsWith(warning))
        format.setForeground(warningColour);
    setCurrentCharFormat(format);
    appendPlainText(line);
    std::printf("%s\n", line.toUtf8().constData());
    std::fflush(stdout);
}
