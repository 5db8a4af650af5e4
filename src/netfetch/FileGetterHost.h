#pragma once

#include <QString>

// What the file getter's rules ask of their window.
class FileGetterHost
{
public:
    virtual ~FileGetterHost() = default;
    virtual void showGetter() = 0;
    // Closes the window, which runs the rules' Unload.
    virtual void unloadGetter() = 0;
    virtual void copyToClipboard(const QString& text) = 0;
};
