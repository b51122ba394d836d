// SPDX-License-Identifier: MIT
#ifndef QTDIFFERENCES_P_H
#define QTDIFFERENCES_P_H

#include <QCoreApplication>
#include <QObject>
#include <QString>
#include <QWidget>
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
#include <QGuiApplication>
#endif

// Everything in which Qt 4.8, 5 and 6 differ for this library, once and by purpose.

// The signal with which a QSignalMapper sends the string that a sender is mapped to.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#define HMI_MAPPED_STRING_SIGNAL SIGNAL(mapped(QString))
#else
#define HMI_MAPPED_STRING_SIGNAL SIGNAL(mappedString(QString))
#endif

// A literal that Qt 4 reads through the process's codec for 8-bit literals, for which applications
// set GBK. Qt 5 and 6 have no such codec; their 8-bit literals are UTF-8.
#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
#define HMI_CODEC_LITERAL(gbkBytes, utf8Text) gbkBytes
#else
#define HMI_CODEC_LITERAL(gbkBytes, utf8Text) utf8Text
#endif

namespace QtDifferences {

inline QString fromCodecLiteral(const char *literal)
{
#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
    return QString::fromAscii(literal);
#else
    return QString::fromUtf8(literal);
#endif
}

// Translates a UTF-8 text that belongs to no context.
inline QString translateUtf8(const char *text)
{
#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
    return QCoreApplication::translate("", text, nullptr, QCoreApplication::UnicodeUTF8);
#else
    return QCoreApplication::translate("", text);
#endif
}

// Whether windows lie above each other here. Qt 5 and 6 complain when asked to raise one on their
// platforms without a screen.
inline bool windowsAreStacked()
{
#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
    return true;
#else
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("offscreen") && !platform.startsWith(QLatin1String("minimal"))
        && platform != QLatin1String("vkkhrdisplay");
#endif
}

// A Qt for small systems may be built without accessibility.
inline void setAccessibleName(QWidget *widget, const QString &name)
{
#ifdef QT_NO_ACCESSIBILITY
    Q_UNUSED(widget);
    Q_UNUSED(name);
#else
    widget->setAccessibleName(name);
#endif
}

} // namespace QtDifferences

#endif
