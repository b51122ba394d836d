// SPDX-License-Identifier: MIT
#ifndef TRANSLATORS_H
#define TRANSLATORS_H

#include <QString>
#include <QTranslator>

// Translates every text of every context: puts the context in front of it. Removes itself from the
// application when it goes.
class ContextTranslator : public QTranslator
{
public:
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
