// SPDX-License-Identifier: MIT
#ifndef FIELDWINDOW_H
#define FIELDWINDOW_H

#include "SignalLog.h"

#include <HMIDevice/FieldKeypads.h>

#include <QLineEdit>
#include <QLocale>
#include <QPointer>
#include <QStringList>
#include <QVBoxLayout>
#include <QWidget>

// A program's window, shown, with one field to work and another that may have the focus.
class FieldWindow : public QWidget
{
public:
    // Takes \a field, and hears those of \a signatures that it has.
    explicit FieldWindow(QWidget *field, const char *signatures = "");

    QPointer<QWidget> field;
    QLineEdit otherField;
    FieldKeypads keypads;
    SignalLog log;

private:
    QVBoxLayout m_layout;
};

// Presses hard keys one after the other: names separated by blanks.
void typeKeys(const char *names);

// The program's locale for as long as a test runs.
class DefaultLocale
{
public:
    explicit DefaultLocale(const QString &name) { QLocale::setDefault(QLocale(name)); }
    ~DefaultLocale() { QLocale::setDefault(QLocale::c()); }

private:
    Q_DISABLE_COPY(DefaultLocale)
};

// The locales in which machines with these panels run.
const QStringList &programLocales();

#endif
