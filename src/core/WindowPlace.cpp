#include "WindowPlace.h"

#include "VbRuntime.h"

#include <algorithm>

namespace {

// A stored number of twips. Texts written by the program are whole numbers;
// an empty text is 0, anything else is read for its leading number and kept
// within a range where the sums of the rules cannot overflow.
int twipsFromText(const QString& text)
{
    return Vb::CLng(std::clamp(Vb::Val(text), -1.0e8, 1.0e8));
}

// The tree window takes the left of the screen: the window keeps right of it
// and only its height has a minimum.
void fitBesideTree(WindowPlace& p, int screenWidth, int screenHeight, int treeWidth)
{
    if (screenWidth - treeWidth < p.width)
        p.width = screenWidth - treeWidth;
    if (p.left < treeWidth)
        p.left = treeWidth;
    if (p.height > screenHeight) {
        p.height = screenHeight - WindowPlace::TaskBarRoom;
        p.top = 0;
    }
    if (p.top < 0)
        p.top = 0;
    if (p.height < WindowPlace::MinHeight)
        p.height = WindowPlace::MinHeight;
    if (screenHeight - p.height < p.top)
        p.top = screenHeight - p.height - WindowPlace::TaskBarRoom;
    if (screenHeight - p.top < p.height)
        p.height = screenHeight - p.top - WindowPlace::TaskBarRoom;
}

void fitOnScreen(WindowPlace& p, int screenWidth, int screenHeight)
{
    if (p.height > screenHeight) {
        p.height = screenHeight - WindowPlace::TaskBarRoom;
        p.top = 0;
    }
    if (p.width > screenWidth) {
        p.width = screenWidth;
        p.left = 0;
    }
    p.top = std::max(p.top, 0);
    p.left = std::max(p.left, 0);
    p.height = std::max(p.height, int(WindowPlace::MinHeight));
    p.width = std::max(p.width, int(WindowPlace::MinWidth));
    if (screenHeight - p.height < p.top)
        p.top = screenHeight - p.height - WindowPlace::TaskBarRoom;
    if (screenWidth - p.width < p.left)
        p.left = screenWidth - p.width;
    if (screenHeight - p.top < p.height)
        p.height = screenHeight - p.top - WindowPlace::TaskBarRoom;
    if (screenWidth - p.left < p.width)
        p.width = screenWidth - p.left;
}

} // namespace

WindowPlace WindowPlace::fit(const QString& left, const QString& top, const QString& height,
                             const QString& width, bool keepSize, int screenWidth, int screenHeight,
                             bool treeShown, int treeWidth)
{
    WindowPlace p;
    p.left = twipsFromText(left);
    p.top = twipsFromText(top);
    p.height = twipsFromText(height);
    p.width = twipsFromText(width);
    p.resize = !keepSize;
    if (treeShown)
        fitBesideTree(p, screenWidth, screenHeight, treeWidth);
    else
        fitOnScreen(p, screenWidth, screenHeight);
    return p;
}

int twipsToPixels(int twips)
{
    // Rounded to the nearest pixel, halves away from zero.
    const int half = WindowPlace::TwipsPerPixel / 2;
    return twips >= 0 ? (twips + half) / WindowPlace::TwipsPerPixel
                      : -((-twips + half) / WindowPlace::TwipsPerPixel);
}

int pixelsToTwips(int pixels)
{
    return pixels * WindowPlace::TwipsPerPixel;
}
