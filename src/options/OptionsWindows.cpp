#include "OptionsWindows.h"

#include "core/AppContext.h"
#include "frmAdd.h"
#include "frmOpt.h"
#include "navigator/MainWindowCalls.h"
#include "navigator/PageSources.h"

#include <QCoreApplication>

OptionsWindows::OptionsWindows(AppContext& ctx, MainWindowCalls& main, Links links)
    : m_ctx(ctx), m_main(main), m_links(std::move(links))
{
}

OptionsWindows::~OptionsWindows() = default;

void OptionsWindows::showOptions()
{
    if (m_options)
        return;
    frmOpt dialog(m_ctx, m_main, *this, m_links.parent ? m_links.parent() : nullptr);
    m_options = &dialog;
    dialog.exec();
    m_options = nullptr;
}

namespace {
template <typename F, typename... Args> void callIfSet(const F& f, Args... args)
{
    if (f)
        f(args...);
}
} // namespace

void OptionsWindows::reloadCatalogue()
{
    callIfSet(m_links.reloadCatalogue);
}

void OptionsWindows::browserOneNextButton()
{
    callIfSet(m_links.browserOneNextButton);
}

void OptionsWindows::browserOneLimit(int milliseconds)
{
    callIfSet(m_links.browserOneLimit, milliseconds);
}

void OptionsWindows::browserOneOnTop()
{
    callIfSet(m_links.browserOneOnTop);
}

void OptionsWindows::browserTwoReloadLists()
{
    callIfSet(m_links.browserTwoReloadLists);
}

QString OptionsWindows::browserTwoLocationName() const
{
    return m_links.browserTwoLocationName ? m_links.browserTwoLocationName() : QString();
}

PageSource OptionsWindows::pageSource() const
{
    return m_main.pageSources().source;
}

void OptionsWindows::choosePageSource(PageSource source)
{
    callIfSet(m_links.choosePageSource, source);
}

bool OptionsWindows::AddAreas(int neighborhoodTable, int suburbTable, int addMode, int neighborhood)
{
    // frmAdd stands above the other windows only when they are not on top.
    if (m_ctx.state.gblnMainOnTop)
        m_main.frmGeoCitiesCalls(GeoCitiesCall::OnTop);
    if (m_ctx.state.gblnWBOneOnTop)
        browserOneOnTop();
    frmAdd window(m_ctx, m_options);
    return window.AddAreas(neighborhoodTable, suburbTable, addMode, neighborhood);
}

void OptionsWindows::pumpEvents()
{
    QCoreApplication::processEvents();
}
