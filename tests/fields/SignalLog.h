// SPDX-License-Identifier: MIT
#ifndef SIGNALLOG_H
#define SIGNALLOG_H

#include <QObject>
#include <QStringList>

// What a program hears: signals of one or more objects, in their order.
class SignalLog : public QObject
{
public:
    // \a signatures are separated by blanks, as "textEdited(QString) editingFinished()".
    void listen(QObject *object, const char *signatures);

    // The same for those of the signals that \a object has.
    void listenToKnown(QObject *object, const char *signatures);

    // Everything that was heard so far, separated by blanks: as "valueChanged(1500)", or the names
    // alone.
    QString heard() const { return m_heard.join(QLatin1String(" ")); }
    QString names() const { return m_names.join(QLatin1String(" ")); }

    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override;

private:
    struct Source
    {
        QByteArray name;
        QList<int> types; // of the parameters
    };

    void listenTo(QObject *object, int signalIndex);

    QList<Source> m_sources;
    QStringList m_heard;
    QStringList m_names;
};

#endif
