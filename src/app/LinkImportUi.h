#pragma once

#include "addressdata/LinkImportHost.h"

#include <memory>

class WindowRegistry;
class frmWait;
struct AppContext;

// The screen of the link import: frmWait for the notice, and the main
// window's saved links for the refresh.
class LinkImportUi : public LinkImportHost
{
public:
    LinkImportUi(AppContext& ctx, WindowRegistry& windows);
    ~LinkImportUi() override;

    void showWait(const QString& text) override;
    void unloadWait() override;
    void refreshSavedLinks() override;

private:
    AppContext& m_ctx;
    WindowRegistry& m_windows;
    std::unique_ptr<frmWait> m_wait;
};
