#pragma once

#include <QString>

// A window's place on the screen in twips, and the rules that bring a
// stored place inside the screen. Places are stored as texts in the
// settings; an empty text counts as 0.
struct WindowPlace
{
    static constexpr int TwipsPerPixel = 15;
    static constexpr int MinHeight = 3300;
    static constexpr int MinWidth = 5000;
    // Room left below a window for the desktop's task bar.
    static constexpr int TaskBarRoom = 450;

    int left = 0;
    int top = 0;
    int height = 0;
    int width = 0;
    // False when the window keeps its size and only moves.
    bool resize = true;

    // The stored place brought inside a screen of screenWidth by
    // screenHeight twips. With treeShown the tree window holds the left
    // treeWidth twips of the screen.
    static WindowPlace fit(const QString& left, const QString& top, const QString& height,
                           const QString& width, bool keepSize, int screenWidth, int screenHeight,
                           bool treeShown, int treeWidth);
};

int twipsToPixels(int twips);
int pixelsToTwips(int pixels);
