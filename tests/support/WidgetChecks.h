#pragma once

// Checks and input of the window tests, which link the widgets; the support
// library itself does not, so these stand in the header.

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QSlider>
#include <QWheelEvent>
#include <QWidget>

namespace WidgetChecks {

// The controls of a window that take input but that a screen reader can
// name neither by a label (a buddy) nor by an accessible name, by their
// objectName. Popups of the lists are windows of their own and not looked at.
inline QStringList unnamedControls(QWidget* window)
{
    QStringList unnamed;
    for (QWidget* w : window->findChildren<QWidget*>()) {
        const bool input = qobject_cast<QComboBox*>(w) || qobject_cast<QSlider*>(w) ||
                           qobject_cast<QLineEdit*>(w) || qobject_cast<QAbstractItemView*>(w);
        if (!input || w->window() != window)
            continue;
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(w);
        const bool labelled = face && !face->relations(QAccessible::Label).isEmpty();
        if (!labelled && w->accessibleName().isEmpty())
            unnamed << w->objectName();
    }
    return unnamed;
}

// Turns the mouse wheel over the middle of a widget by notches, away from
// the user for a positive count.
inline void wheel(QWidget* widget, int notches)
{
    const QPointF at = QRectF(widget->rect()).center();
    QWheelEvent event(at, widget->mapToGlobal(at), QPoint(), QPoint(0, 120 * notches), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

} // namespace WidgetChecks
