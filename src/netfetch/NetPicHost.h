#pragma once

#include <QStringList>

// What NetPic's rules ask of the other windows and of their own.
class NetPicHost
{
public:
    virtual ~NetPicHost() = default;
    // Hands the pages to Browser One for paging.
    virtual void CommunicatWithNetPic(const QStringList& pages) = 0;
    // Unloads frmNetPics (which saves its place and settings).
    virtual void unloadNetPics() = 0;
    // Lets the window repaint and answer during a build.
    virtual void pumpEvents() = 0;
};
