#pragma once

#include <QPointer>
#include <QString>
#include <functional>

struct AppContext;
class frmExport;
class frmGeoFtp;
class frmVBScript;

// The publishing tools' windows as the program wires them in, each made on
// first use. The program's registry makes this and reaches them through it.
class PublishingWindows
{
public:
    // openPage: opens a file or address in the navigator's browser.
    PublishingWindows(AppContext& ctx, std::function<void(const QString&)> openPage);
    ~PublishingWindows();

    void showExport();
    frmExport* exportDialog() const;
    void unloadExport();
    void showGeoFtp();
    frmGeoFtp* geoFtp() const;
    void unloadGeoFtp();
    void showScript();
    frmVBScript* script() const;
    void unloadScript();

private:
    AppContext& m_ctx;
    std::function<void(const QString&)> m_openPage;
    QPointer<frmExport> m_export;
    QPointer<frmGeoFtp> m_geoFtp;
    QPointer<frmVBScript> m_script;
};
