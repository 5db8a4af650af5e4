#pragma once

#include <QRect>
#include <QString>

class QWidget;
struct SharedState;

// Moves a window to a stored place (texts in twips), brought inside the
// primary screen's available area, and sizes it unless keepSize is set.
// treeWidth: the tree window's width in twips, used while
// state.gblnTreeShown is set; the window is then kept right of the tree and
// taken out of the minimised or maximised state.
//
// Left and top are the frame's position (QWidget::move), height and width the
// client area (QWidget::resize): a place saved from pos() and size() comes
// back unchanged. Places are screen coordinates; only the size of the
// available area bounds them.
void PlaceWindow(QWidget* window, const SharedState& state, const QString& left, const QString& top,
                 const QString& height, const QString& width, bool keepSize, int treeWidth);

// The primary screen's available area in pixels; 1024 by 768 without one.
QRect AvailableScreen();

// A place in pixels as twips.
QRect PixelsToTwips(const QRect& pixels);
