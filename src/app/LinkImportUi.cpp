#include "LinkImportUi.h"

#include "WindowRegistry.h"
#include "cache/frmWait.h"
#include "core/AppContext.h"
#include "navigator/frmGeoCities.h"

LinkImportUi::LinkImportUi(AppContext& ctx, WindowRegistry& windows)
    : m_ctx(ctx), m_windows(windows)
{
}

LinkImportUi::~LinkImportUi() = default;

void LinkImportUi::showWait(const QString& text)
{
    m_wait = std::make_unique<frmWait>(m_ctx.state);
    m_wait->lblWait->setText(text);
    m_wait->Load();
}

void LinkImportUi::unloadWait()
{
    m_wait.reset();
}

void LinkImportUi::refreshSavedLinks()
{
    if (frmGeoCities* main = m_windows.main(false))
        main->navigator().savedLinks().LoadSavedLinks(m_ctx.state.gblnJapan ? Tbl::JapanSaved
                                                                            : Tbl::UsaSaved);
}
