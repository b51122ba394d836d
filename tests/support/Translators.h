// SPDX-License-Identifier: MIT
#ifndef TRANSLATORS_H
#define TRANSLATORS_H

#include <QCoreApplication>
#include <QString>
#include <QTranslator>

// Translates every text of every context, while it lives: puts the context in front of it.
class ContextTranslator : public QTranslator
{
public:
    ContextTranslator() { QCoreApplication::installTranslator(this); }

    bool isEmpty() const override { return false; }

    // Qt 4 asks the first, later ones the second.
    virtual QString translate(const char *context, const char *text, const char *) const
    {
        return QString::fromUtf8(context) + QLatin1Char('/') + QString::fromUtf8(text);
    }
    virtual QString translate(const char *context, const char *text, const char *, int) const
    {
        return translate(context, text, nullptr);
    }
};

#endif
