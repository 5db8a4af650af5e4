#pragma once

#include "core/StartupUi.h"

#include <QLockFile>
#include <memory>

struct AppContext;
class WindowRegistry;
class frmStartUp;

// The start-up's screen: the splash window, the main window from the
// registry, and a lock in the user's runtime folder that tells a second
// instance.
class MainStartupUi : public StartupUi
{
public:
    MainStartupUi(AppContext& ctx, WindowRegistry& windows, const QString& lockPath);
    ~MainStartupUi() override;

    void showSplash(const QString& status) override;
    void unloadSplash() override;
    MainWindowEntry& loadMainWindow() override;
    void showMainWindow() override;
    bool isPrevInstance() override;

    // The lock's place: the user's runtime folder.
    static QString defaultLockPath();

private:
    AppContext& m_ctx;
    WindowRegistry& m_windows;
    std::unique_ptr<frmStartUp> m_splash;
    QLockFile m_lock;
};
