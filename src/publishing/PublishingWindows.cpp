#include "PublishingWindows.h"

#include "frmExport.h"
#include "frmGeoFtp.h"
#include "frmVBScript.h"

namespace {

void bringUp(QWidget* window)
{
    window->show();
    window->raise();
    window->activateWindow();
}

void closeOpen(QWidget* window)
{
    if (window)
        window->close();
}

} // namespace

PublishingWindows::PublishingWindows(AppContext& ctx, std::function<void(const QString&)> openPage)
    : m_ctx(ctx), m_openPage(std::move(openPage))
{
}

PublishingWindows::~PublishingWindows()
{
    delete m_export.data();
    delete m_geoFtp.data();
    delete m_script.data();
}

void PublishingWindows::showExport()
{
    if (!m_export)
        m_export = new frmExport(m_ctx, m_openPage);
    bringUp(m_export);
}

frmExport* PublishingWindows::exportDialog() const
{
    return m_export;
}

void PublishingWindows::unloadExport()
{
    closeOpen(m_export);
}

void PublishingWindows::showGeoFtp()
{
    if (!m_geoFtp) {
        GeoFtp::Links links;
        links.showScript = [this] { showScript(); }; // its Quick Page
        m_geoFtp = new frmGeoFtp(m_ctx, links);
    }
    bringUp(m_geoFtp);
}

frmGeoFtp* PublishingWindows::geoFtp() const
{
    return m_geoFtp;
}

void PublishingWindows::unloadGeoFtp()
{
    closeOpen(m_geoFtp);
}

void PublishingWindows::showScript()
{
    if (!m_script)
        m_script = new frmVBScript(m_ctx, m_openPage);
    bringUp(m_script);
}

frmVBScript* PublishingWindows::script() const
{
    return m_script;
}

void PublishingWindows::unloadScript()
{
    closeOpen(m_script);
}
