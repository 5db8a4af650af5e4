#include "PlaceWindow.h"

#include "SharedState.h"
#include "WindowPlace.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

void PlaceWindow(QWidget* window, const SharedState& state, const QString& left, const QString& top,
                 const QString& height, const QString& width, bool keepSize, int treeWidth)
{
    if (!window)
        return;
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen)
        return;
    const QRect area = screen->availableGeometry();
    const WindowPlace place =
        WindowPlace::fit(left, top, height, width, keepSize, pixelsToTwips(area.width()),
                         pixelsToTwips(area.height()), state.gblnTreeShown, treeWidth);

    if (state.gblnTreeShown)
        window->setWindowState(window->windowState() &
                               ~(Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen));
    window->move(twipsToPixels(place.left), twipsToPixels(place.top));
    if (place.resize)
        window->resize(twipsToPixels(place.width), twipsToPixels(place.height));
}

QRect AvailableScreen()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry() : QRect(0, 0, 1024, 768);
}

QRect PixelsToTwips(const QRect& r)
{
    return QRect(pixelsToTwips(r.left()), pixelsToTwips(r.top()), pixelsToTwips(r.width()),
                 pixelsToTwips(r.height()));
}
