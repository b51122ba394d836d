// SPDX-License-Identifier: MIT
#ifndef EVENTLOG_H
#define EVENTLOG_H

#include <QPlainTextEdit>

// What happened, the last thing at the bottom. Each line goes to the standard output, too, at once
// and in UTF-8, so that a script can wait for it: the lines of KeypadWatch ("Y = -12.5"), and those
// about the panel itself, which begin with "panel: ".
class EventLog : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit EventLog(QWidget *parent);

public Q_SLOTS:
    void add(const QString &line);
};

#endif
