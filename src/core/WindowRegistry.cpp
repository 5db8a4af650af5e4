#include "WindowRegistry.h"

#include "AppContext.h"
#include "navigator/frmGeoCities.h"

WindowRegistry::WindowRegistry(AppContext& ctx) : m_ctx(ctx) {}

WindowRegistry::~WindowRegistry() { delete m_main; }

frmGeoCities* WindowRegistry::main(bool create)
{
    if (!m_main && create)
        m_main = new frmGeoCities(m_ctx, *this);
    return m_main;
}

bool WindowRegistry::has(const QString&) const { return false; }

bool WindowRegistry::show(ProgramWindow) { return false; }

void WindowRegistry::unload(ProgramWindow) {}

void WindowRegistry::ShowBrowserOne() {}

void WindowRegistry::browserNavigate(const QString& url) { m_lastTarget = url; }

void WindowRegistry::browserStop() {}

void WindowRegistry::browserGoBack() {}

void WindowRegistry::toggleBrowserOneOnTop() {}
