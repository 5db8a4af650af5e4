#include "PublishingWindows.h"

#include "frmExport.h"

PublishingWindows::PublishingWindows(AppContext& ctx, std::function<void(const QString&)> openPage)
    : m_ctx(ctx), m_openPage(std::move(openPage))
{
}

PublishingWindows::~PublishingWindows()
{
    delete m_export.data();
}

void PublishingWindows::showExport()
{
    if (!m_export)
        m_export = new frmExport(m_ctx, m_openPage);
    m_export->show();
    m_export->raise();
    m_export->activateWindow();
}

frmExport* PublishingWindows::exportDialog() const
{
    return m_export;
}

void PublishingWindows::unloadExport()
{
    if (m_export)
        m_export->close();
}
