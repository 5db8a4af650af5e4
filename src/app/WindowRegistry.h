#pragma once

#include "browserone/BrowserWindowList.h"
#include "navigator/NavigatorWindows.h"

#include <QPointer>
#include <functional>
#include <map>
#include <memory>

struct AppContext;
class BrowserOneWindows;
class CacheWindows;
class BrowserTwoWindows;
class NetFetchWindows;
class OptionsWindows;
class PublishingWindows;
class WordListHostRelay;
class WordListWindows;
class frmGeoCities;
class frmWBOLinks;
class frmWBOne;

// The program's windows, each made on first use, through which they reach
// each other. It is the one place that knows every subsystem: each one
// adds its windows here with one call in the constructor.
class WindowRegistry : public NavigatorWindows
{
public:
    explicit WindowRegistry(AppContext& ctx);
    ~WindowRegistry() override;

    // The main window, made on first use with Browser One's windows.
    frmGeoCities* main(bool create = true);
    frmWBOne* browserOne() const;
    frmWBOLinks* linksPanel() const;
    BrowserWindowList& browsers();

    // NavigatorWindows
    void ShowBrowserOne() override;
    void browserNavigate(const QString& url) override;
    void browserStop() override;
    void browserGoBack() override;
    void toggleBrowserOneOnTop() override;
    QString browserTitle() const override;
    bool hasWindow(ProgramWindow window) const override;
    bool showWindow(ProgramWindow window) override;
    void unloadWindow(ProgramWindow window) override;

private:
    struct Entry
    {
        std::function<void()> show;
        std::function<void()> unload;
    };
    void add(ProgramWindow window, std::function<void()> show, std::function<void()> unload = {});
    BrowserOneWindows& browserOneWindows();
    BrowserTwoWindows& browserTwoWindows();
    NetFetchWindows& netFetchWindows();
    CacheWindows& cacheWindows();
    PublishingWindows& publishingWindows();
    OptionsWindows& optionsWindows();
    // The tree window's width in twips, 0 while it is not open.
    int treeWidthTwips() const;

    AppContext& m_ctx;
    std::map<ProgramWindow, Entry> m_windows;
    std::unique_ptr<frmGeoCities> m_main;
    std::unique_ptr<BrowserOneWindows> m_browserOne;
    // Browser Two's stored lists and word sources, made with its windows.
    std::unique_ptr<WordListHostRelay> m_wordListHost;
    std::unique_ptr<WordListWindows> m_wordLists;
    std::unique_ptr<BrowserTwoWindows> m_browserTwo;
    std::unique_ptr<NetFetchWindows> m_netFetch;
    std::unique_ptr<CacheWindows> m_cache;
    std::unique_ptr<PublishingWindows> m_publishing;
    std::unique_ptr<OptionsWindows> m_options;
};
