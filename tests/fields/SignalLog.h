// SPDX-License-Identifier: MIT
#ifndef SIGNALLOG_H
#define SIGNALLOG_H

#include <QObject>
#include <QStringList>

// What a program hears: signals of one or more objects, in their order, as "valueChanged(1500)".
class SignalLog : public QObject
{
public:
    // \a signatures are separated by blanks, as "textEdited(QString) editingFinished()".
    void listen(QObject *object, const char *signatures);

    // Everything that was heard so far, separated by blanks.
    QString heard() const { return m_heard.join(QLatin1String(" ")); }

    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override;

private:
    struct Source
    {
        QByteArray name;
        QList<int> types; // of the parameters
    };

    QList<Source> m_sources;
    QStringList m_heard;
};

#endif
