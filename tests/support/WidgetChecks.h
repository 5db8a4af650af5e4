#pragma once

// Input of the window tests, which link the widgets; the support
// library itself does not, so these stand in the header.

#include <QApplication>
#include <QWheelEvent>
#include <QWidget>

namespace WidgetChecks {

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
