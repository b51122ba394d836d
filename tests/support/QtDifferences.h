// SPDX-License-Identifier: MIT
#ifndef TEST_QTDIFFERENCES_H
#define TEST_QTDIFFERENCES_H

#include <QKeySequence>
#include <QMetaMethod>
#include <QObject>
#include <QString>
#include <QVariant>
#include <QtTest>
#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
#include <QTextCodec>
#endif
#if QT_VERSION < QT_VERSION_CHECK(5, 1, 0)
#include <QRegExp>
#include <QRegExpValidator>
#else
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#endif

// Everything in which Qt 4.8, 5 and 6 differ for the tests, once and by purpose.

// The signal with which a QSignalMapper sends the string that a sender is mapped to.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#define HMI_MAPPED_SIGNAL SIGNAL(mapped(QString))
#else
#define HMI_MAPPED_SIGNAL SIGNAL(mappedString(QString))
#endif

// Skips the data row, which in Qt 4.8 is a mode of skipping.
#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
#define HMI_SKIP(reason) QSKIP(reason, SkipSingle)
#else
#define HMI_SKIP(reason) QSKIP(reason)
#endif

// The result that a filter of the windowing system's events may give.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#define HMI_NATIVE_RESULT long
#else
#define HMI_NATIVE_RESULT qintptr
#endif

namespace QtDifferences {

// A pattern, and the validator that accepts what matches it.
#if QT_VERSION < QT_VERSION_CHECK(5, 1, 0)
typedef QRegExp Pattern;
typedef QRegExpValidator PatternValidator;
#else
typedef QRegularExpression Pattern;
typedef QRegularExpressionValidator PatternValidator;
#endif

// A function that is called with each message, and how to make it the one that is called.
#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
typedef QtMsgHandler MessageHandler;
#define HMI_MESSAGE_HANDLER(name, text) void name(QtMsgType, const char *text)
inline MessageHandler installMessageHandler(MessageHandler handler)
{
    return qInstallMsgHandler(handler);
}
inline QString messageText(const char *text)
{
    return QString::fromLocal8Bit(text);
}
#else
typedef QtMessageHandler MessageHandler;
#define HMI_MESSAGE_HANDLER(name, text) \
    void name(QtMsgType, const QMessageLogContext &, const QString &text)
inline MessageHandler installMessageHandler(MessageHandler handler)
{
    return qInstallMessageHandler(handler);
}
inline QString messageText(const QString &text)
{
    return text;
}
#endif

// Makes the process read 8-bit literals as an application for Chinese panels does.
inline void readLiteralsAsGbk()
{
#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
    QTextCodec::setCodecForCStrings(QTextCodec::codecForName("GBK"));
#endif
}

// The last year of the dates that Qt reads from a text and a keypad can show.
inline int lastYearRead()
{
#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
    return 7999;
#else
    return 9999;
#endif
}

// The name of a method and the types of its parameters, as in "setText(QString)".
inline QByteArray methodSignature(const QMetaMethod &method)
{
#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
    return method.signature();
#else
    return method.methodSignature();
#endif
}

// The value of the type of that number at \a data.
inline QVariant variantOf(int type, const void *data)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return QVariant(type, data);
#else
    return QVariant(QMetaType(type), data);
#endif
}

// The first key of \a sequence, without modifiers.
inline Qt::Key keyOf(const QKeySequence &sequence)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return Qt::Key(sequence[0] & ~Qt::KeyboardModifierMask);
#else
    return sequence[0].key();
#endif
}

} // namespace QtDifferences

#endif
