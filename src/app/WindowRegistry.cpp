#include "WindowRegistry.h"

#include "LinkImportUi.h"
#include "WordListHostRelay.h"
#include "addressdata/MainDatabase.h"
#include "browserone/BrowserControl.h"
#include "browserone/BrowserOne.h"
#include "browserone/BrowserOneWindows.h"
#include "browserone/WebBrowserControl.h"
#include "browserone/frmWBOne.h"
#include "browsertwo/BrowserTwoWindows.h"
#include "browsertwo/WordListWindows.h"
#include "browsertwo/frmWBTwo.h"
#include "cache/CacheActionRunner.h"
#include "cache/CacheWindows.h"
#include "core/AppContext.h"
#include "core/frmAbout.h"
#include "navigator/NavigatorControls.h"
#include "navigator/NeighborhoodPictures.h"
#include "navigator/frmGeoCities.h"
#include "netfetch/FileGetter.h"
#include "netfetch/NetFetchWindows.h"
#include "options/OptionsWindows.h"
#include "publishing/PublishingWindows.h"

#include <QWebEngineProfile>

WindowRegistry::WindowRegistry(AppContext& ctx) : m_ctx(ctx)
{
    add(
        ProgramWindow::BrowserOne, [this] { ShowBrowserOne(); },
        [this] { browserOneWindows().unload(); });
    add(
        ProgramWindow::BrowserTwo, [this] { browserTwoWindows().ShowBrowserTwo(); },
        [this] {
            if (m_browserTwo)
                m_browserTwo->unload();
        });
    add(ProgramWindow::About, [this] {
        frmAbout about(m_ctx.prompts, NeighborhoodPictures::picture(false, 1), m_main.get());
        about.exec();
    });
    add(ProgramWindow::LinkImport, [this] {
        LinkImportUi screen(m_ctx, *this);
        DatabaseAction(m_ctx, 3, &screen);
    });
    add(
        ProgramWindow::GeoTree, [this] { netFetchWindows().showTree(); },
        [this] { netFetchWindows().unloadTree(); });
    add(ProgramWindow::NetPics, [this] { netFetchWindows().showNetPics(); });
    add(
        ProgramWindow::Inetget,
        [this] { netFetchWindows().frmInetgetCalls(int(InetgetCall::GetList)); },
        [this] {
            if (m_netFetch)
                m_netFetch->unloadGetter();
        });
    add(
        ProgramWindow::Cache, [this] { cacheWindows().show(); },
        [this] {
            if (m_cache)
                m_cache->unload();
        });
    add(
        ProgramWindow::Export, [this] { publishingWindows().showExport(); },
        [this] {
            if (m_publishing)
                m_publishing->unloadExport();
        });
    add(
        ProgramWindow::GeoFtp, [this] { publishingWindows().showGeoFtp(); },
        [this] {
            if (m_publishing)
                m_publishing->unloadGeoFtp();
        });
    add(
        ProgramWindow::Script, [this] { publishingWindows().showScript(); },
        [this] {
            if (m_publishing)
                m_publishing->unloadScript();
        });
    add(ProgramWindow::Options, [this] { optionsWindows().showOptions(); });
}

// Browser One's windows reach into the main window's rules: they go first.
WindowRegistry::~WindowRegistry()
{
    m_options.reset();
    m_publishing.reset();
    m_cache.reset();
    m_netFetch.reset();
    m_browserTwo.reset();
    m_wordLists.reset();
    m_browserOne.reset();
    m_main.reset();
}

void WindowRegistry::add(ProgramWindow window, std::function<void()> show,
                         std::function<void()> unload)
{
    m_windows[window] = Entry{std::move(show), std::move(unload)};
}

frmGeoCities* WindowRegistry::main(bool create)
{
    if (!m_main && create) {
        m_main = std::make_unique<frmGeoCities>(m_ctx, *this);
        m_browserOne = std::make_unique<BrowserOneWindows>(
            m_ctx, m_main->navigator(), [this] { return static_cast<QWidget*>(m_main.get()); },
            [this] { return treeWidthTwips(); });
    }
    return m_main.get();
}

BrowserOneWindows& WindowRegistry::browserOneWindows()
{
    main();
    return *m_browserOne;
}

BrowserTwoWindows& WindowRegistry::browserTwoWindows()
{
    main();
    if (!m_browserTwo) {
        BrowserTwoWindows::Links links;
        links.profile = [this] { return browserOneWindows().profile(); };
        links.openPopUp = [this] { return browserOneWindows().openPopUp(); };
        links.browsers = [this]() -> BrowserWindowList& { return browsers(); };
        links.mainCall = [this](GeoCitiesCall code) {
            m_main->navigator().frmGeoCitiesCalls(code);
        };
        links.clearTopmost = [this] { m_main->navigator().releaseOnTop(); };
        links.getFileList = [this] { netFetchWindows().GetFileListMenu(3); };
        links.splashPicture = [] { return NeighborhoodPictures::picture(false, 1); };
        m_wordListHost = std::make_unique<WordListHostRelay>();
        m_wordLists = std::make_unique<WordListWindows>(m_ctx, *m_wordListHost, m_main.get());
        m_browserTwo = std::make_unique<BrowserTwoWindows>(m_ctx, m_wordLists->actions(), links);
        m_wordListHost->target = m_browserTwo.get();
    }
    return *m_browserTwo;
}

NetFetchWindows& WindowRegistry::netFetchWindows()
{
    main();
    if (!m_netFetch) {
        NetFetchWindows::Links links;
        links.browserWindow = [this](GeoTreeHost::Browser which) -> QWidget* {
            return which == GeoTreeHost::BrowserOne ? browserOne() : nullptr;
        };
        links.showBrowserOne = [this] { ShowBrowserOne(); };
        links.treeUnloaded = [this] {
            m_main->navigator().controls().mnuGeoTree.setChecked(false);
        };
        links.profile = [this] { return browserOneWindows().profile(); };
        links.browserControl = [this](int which) -> BrowserControl* {
            if (which == 2)
                return m_browserTwo ? m_browserTwo->browserControl() : nullptr;
            frmWBOne* browser = which == 1 ? browserOne() : nullptr;
            return browser ? &browser->control() : nullptr;
        };
        links.communicatWithNetPic = [this](const QStringList& pages) {
            ShowBrowserOne();
            if (frmWBOne* browser = browserOne())
                browser->rules().CommunicatWithNetPic(pages);
        };
        m_netFetch = std::make_unique<NetFetchWindows>(m_ctx, m_main->navigator(), links);
    }
    return *m_netFetch;
}

CacheWindows& WindowRegistry::cacheWindows()
{
    main();
    if (!m_cache) {
        CacheWindows::Links links;
        // Browser One's entry is bound to the navigator's, so one switch serves both.
        links.enableMenus = [this](bool on) {
            m_main->navigator().controls().mnuCache.setEnabled(on);
        };
        links.releaseOnTop = [this] { m_main->navigator().releaseOnTop(); };
        links.actions = [](AppContext& ctx, CacheState& state, CacheActionHost& host) {
            return std::unique_ptr<CacheActions>(new CacheActionRunner(ctx, state, host));
        };
        links.openViewer = [this](const QString& path) {
            netFetchWindows().frmInetgetCalls(int(InetgetCall::Viewer), path);
        };
        links.showPages = [this](const QStringList& pages) {
            ShowBrowserOne();
            if (frmWBOne* browser = browserOne())
                browser->rules().CommunicatWithNetPic(pages);
            if (!pages.isEmpty())
                m_main->navigator().NavigateSomeWhereElse(pages.first());
        };
        links.profileCache = [this] { return browserOneWindows().profile()->cachePath(); };
        links.treeWidth = [this] { return treeWidthTwips(); };
        m_cache = std::make_unique<CacheWindows>(m_ctx, links);
    }
    return *m_cache;
}

PublishingWindows& WindowRegistry::publishingWindows()
{
    main();
    if (!m_publishing)
        m_publishing = std::make_unique<PublishingWindows>(m_ctx, [this](const QString& path) {
            m_main->navigator().NavigateSomeWhereElse(path);
        });
    return *m_publishing;
}

OptionsWindows& WindowRegistry::optionsWindows()
{
    main();
    if (!m_options) {
        OptionsWindows::Links links;
        links.parent = [this] { return static_cast<QWidget*>(m_main.get()); };
        links.reloadCatalogue = [this] { m_main->navigator().RefreshCatalogue(); };
        links.browserOneNextButton = [this] {
            if (frmWBOne* browser = browserOne()) {
                BrowserOne& rules = browser->rules();
                rules.cmdNext.setVisible(m_ctx.state.gblnShowNextButton);
                rules.txtAddressBar.setVisible(m_ctx.state.gblnShowNextButton);
                rules.frmWBOCalls(WBOCall::Resize);
            }
        };
        links.browserOneLimit = [this](int milliseconds) {
            if (frmWBOne* browser = browserOne())
                browser->rules().tmrLimit.setInterval(std::max(milliseconds, 0));
        };
        links.browserOneOnTop = [this] { toggleBrowserOneOnTop(); };
        links.browserTwoReloadLists = [this] {
            if (m_browserTwo)
                m_browserTwo->frmWBTCalls(WBTCall::LoadServerList);
        };
        links.browserTwoLocationName = [this] {
            BrowserControl* browser = m_browserTwo ? m_browserTwo->browserControl() : nullptr;
            return browser ? browser->LocationName() : QString();
        };
        // A mirror not yet placed is asked for, as the Tools menu does.
        links.choosePageSource = [this](PageSource source) {
            Navigator& nav = m_main->navigator();
            if (source == PageSource::LocalMirror && nav.pageSources().localMirror.isEmpty())
                nav.archiveMenu().MirrorClick();
            else
                nav.archiveMenu().choose(source);
        };
        m_options = std::make_unique<OptionsWindows>(m_ctx, m_main->navigator(), links);
    }
    return *m_options;
}

int WindowRegistry::treeWidthTwips() const
{
    return m_netFetch ? m_netFetch->treeWidthTwips() : 0;
}

frmWBOne* WindowRegistry::browserOne() const
{
    return m_browserOne ? m_browserOne->browserOne() : nullptr;
}

frmWBOLinks* WindowRegistry::linksPanel() const
{
    return m_browserOne ? m_browserOne->linksPanel() : nullptr;
}

BrowserWindowList& WindowRegistry::browsers()
{
    return browserOneWindows().browsers();
}

void WindowRegistry::ShowBrowserOne()
{
    browserOneWindows().ShowBrowserOne();
}

void WindowRegistry::browserNavigate(const QString& url)
{
    browserOneWindows().navigate(url);
}

void WindowRegistry::browserStop()
{
    browserOneWindows().stop();
}

void WindowRegistry::browserGoBack()
{
    browserOneWindows().goBack();
}

void WindowRegistry::toggleBrowserOneOnTop()
{
    browserOneWindows().toggleOnTop();
}

QString WindowRegistry::browserTitle() const
{
    return m_browserOne ? m_browserOne->title() : QString();
}

bool WindowRegistry::hasWindow(ProgramWindow window) const
{
    return m_windows.count(window) > 0;
}

bool WindowRegistry::showWindow(ProgramWindow window)
{
    const auto found = m_windows.find(window);
    if (found == m_windows.end())
        return false;
    found->second.show();
    return true;
}

void WindowRegistry::unloadWindow(ProgramWindow window)
{
    const auto found = m_windows.find(window);
    if (found != m_windows.end() && found->second.unload)
        found->second.unload();
}
