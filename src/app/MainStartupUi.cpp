#include "MainStartupUi.h"

#include "WindowRegistry.h"
#include "core/AppContext.h"
#include "core/frmStartUp.h"
#include "navigator/NeighborhoodPictures.h"
#include "navigator/frmGeoCities.h"

#include <QCoreApplication>
#include <QStandardPaths>

MainStartupUi::MainStartupUi(AppContext& ctx, WindowRegistry& windows, const QString& lockPath)
    : m_ctx(ctx), m_windows(windows), m_lock(lockPath)
{
}

MainStartupUi::~MainStartupUi() = default;

QString MainStartupUi::defaultLockPath()
{
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty())
        folder = QStandardPaths::writableLocation(QStandardPaths::TempLocation);
    return folder + QStringLiteral("/vorlan.lock");
}

void MainStartupUi::showSplash(const QString& status)
{
    if (!m_splash)
        m_splash =
            std::make_unique<frmStartUp>(m_ctx.state, NeighborhoodPictures::picture(false, 1));
    m_splash->setLabel(3, status);
    m_splash->show();
    m_splash->raise();
    while (!m_ctx.state.gblnStartUpShown)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    QCoreApplication::processEvents();
}

void MainStartupUi::unloadSplash()
{
    m_splash.reset();
}

MainWindowEntry& MainStartupUi::loadMainWindow()
{
    return m_windows.main()->navigator();
}

void MainStartupUi::showMainWindow()
{
    frmGeoCities* window = m_windows.main();
    window->show();
    window->raise();
    window->activateWindow();
}

bool MainStartupUi::isPrevInstance()
{
    m_lock.setStaleLockTime(0);
    return !m_lock.tryLock(0);
}
