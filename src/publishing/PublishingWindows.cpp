#include "PublishingWindows.h"

#include "frmExport.h"
#include "frmGeoFtp.h"

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
    if (!m_geoFtp)
        m_geoFtp = new frmGeoFtp(m_ctx, GeoFtp::Links{});
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
