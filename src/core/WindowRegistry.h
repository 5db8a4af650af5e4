#pragma once

#include "navigator/NavigatorHost.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

struct AppContext;
class frmGeoCities;

// The open windows of the program, each made on first use, through which
// the windows reach each other.
class WindowRegistry : public QObject
{
    Q_OBJECT
public:
    explicit WindowRegistry(AppContext& ctx);
    ~WindowRegistry() override;

    frmGeoCities* main(bool create = true);

    // Whether this build has the window behind a menu entry of that name.
    bool has(const QString& menuEntry) const;
    bool show(ProgramWindow window);
    void unload(ProgramWindow window);

    // Browser One.
    void ShowBrowserOne();
    void browserNavigate(const QString& url);
    void browserStop();
    void browserGoBack();
    void toggleBrowserOneOnTop();
    QString lastTarget() const { return m_lastTarget; }

private:
    AppContext& m_ctx;
    QPointer<frmGeoCities> m_main;
    QString m_lastTarget;
};
