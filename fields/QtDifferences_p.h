// SPDX-License-Identifier: MIT
#ifndef FIELDS_QTDIFFERENCES_P_H
#define FIELDS_QTDIFFERENCES_P_H

#include <QAbstractItemView>
#include <QApplication>
#include <QMouseEvent>
#include <QVariant>

// Everything in which Qt 5 and 6 differ for this library, once and by purpose.

namespace QtDifferences {

inline QPoint globalPosition(const QMouseEvent *event)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return event->globalPos();
#else
    return event->globalPosition().toPoint();
#endif
}

// The delegate that shows and edits the cell at \a index.
inline QAbstractItemDelegate *delegateOf(const QAbstractItemView *view, const QModelIndex &index)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return view->itemDelegate(index);
#else
    return view->itemDelegateForIndex(index);
#endif
}

// Makes \a value one of the type of \a like; false when that cannot be.
inline bool convertLike(QVariant *value, const QVariant &like)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return value->convert(like.userType());
#else
    return value->convert(like.metaType());
#endif
}

// Tells Qt that \a window, which has the keyboard, is the active one.
inline void setActiveWindow(QWidget *window)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 5, 0)
    QApplication::setActiveWindow(window);
#else
    window->activateWindow();
#endif
}

} // namespace QtDifferences

#endif
