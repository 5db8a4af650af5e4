#pragma once

#include <QRect>
#include <QString>

// What the saved-links panel's rules ask of the screen and the panel's
// window. Places are in twips.
class LinksPanelHost
{
public:
    virtual ~LinksPanelHost() = default;
    virtual QRect screenTwips() const = 0;
    // The panel's place; before it is made, its first size at no place.
    virtual QRect panelTwips() const = 0;
    // Makes the panel if need be and moves it to a stored place (texts in
    // twips), brought on the screen.
    virtual void placePanel(const QString& left, const QString& top, const QString& height,
                            const QString& width) = 0;
    // Shows the panel and gives it the focus.
    virtual void showPanel() = 0;
    // Hides and unloads the panel.
    virtual void closePanel() = 0;
};
