#pragma once

#include <QRect>

// What the tree's rules ask of the screen: the tree window's place and the
// browser windows beside it. Places are frames in twips.
class GeoTreeHost
{
public:
    enum Browser
    {
        BrowserOne = 1,
        BrowserTwo = 2
    };

    virtual ~GeoTreeHost() = default;

    virtual QRect screenTwips() const = 0;
    virtual QRect treeTwips() const = 0;
    virtual bool treeMinimised() const = 0;
    virtual bool browserOpen(Browser which) const = 0;
    virtual QRect browserTwips(Browser which) const = 0;
    virtual bool browserMaximised(Browser which) const = 0;
    // Puts the browser to normal size at place.
    virtual void placeBrowser(Browser which, const QRect& place) = 0;
    // Shows Browser One, made on first use.
    virtual void showBrowserOne() = 0;
};
