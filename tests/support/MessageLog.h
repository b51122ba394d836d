// SPDX-License-Identifier: MIT
#ifndef MESSAGELOG_H
#define MESSAGELOG_H

#include "QtDifferences.h"

#include <QStringList>

// Keeps the messages that Qt or the library would print while it lives. One at a time.
class MessageLog
{
public:
    MessageLog()
    {
        kept().clear();
        m_previous = QtDifferences::installMessageHandler(keep);
    }
    ~MessageLog() { QtDifferences::installMessageHandler(m_previous); }

    QStringList messages() const { return kept(); }

private:
    Q_DISABLE_COPY(MessageLog)

    static QStringList &kept()
    {
        static QStringList list;
        return list;
    }
    static HMI_MESSAGE_HANDLER(keep, text) { kept() << QtDifferences::messageText(text); }

    QtDifferences::MessageHandler m_previous;
};

#endif
