#pragma once

#include <functional>
#include <memory>

struct AppContext;
struct CacheState;
class CacheActionHost;

// The eighteen file actions as the cache window starts and finishes them.
class CacheActions
{
public:
    virtual ~CacheActions() = default;
    // Runs the action chosen in optAction on the listed or selected files.
    virtual void RunCacheAction() = 0;
    // Gives the controls back and ends the busy state; the window's Unload
    // calls it too.
    virtual void FinishCacheAction() = 0;
};

// Makes the actions for one cache window, which lives longer than they do.
using CacheActionsFactory =
    std::function<std::unique_ptr<CacheActions>(AppContext&, CacheState&, CacheActionHost&)>;
