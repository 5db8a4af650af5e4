#pragma once

#include "OptionsHost.h"

#include <functional>

struct AppContext;
class MainWindowCalls;
class QWidget;
class frmOpt;

// The options subsystem as the program wires it in: frmOpt, shown modally
// from the Navigator's Options entry, and frmAdd behind it. What the dialog
// asks of other windows goes through the links the registry gives.
class OptionsWindows : public OptionsHost
{
public:
    struct Links
    {
        std::function<QWidget*()> parent;
        std::function<void()> reloadCatalogue;
        std::function<void()> browserOneNextButton;
        std::function<void(int)> browserOneLimit;
        std::function<void()> browserOneOnTop;
        // Browser Two's frmWBTCalls(1) and page name; unset until it exists.
        std::function<void()> browserTwoReloadLists;
        std::function<QString()> browserTwoLocationName;
        std::function<void(PageSource)> choosePageSource;
    };

    OptionsWindows(AppContext& ctx, MainWindowCalls& main, Links links);
    ~OptionsWindows() override;

    // Shows the dialog and waits for it to close.
    void showOptions();
    frmOpt* options() const { return m_options; }

    // OptionsHost
    void reloadCatalogue() override;
    void browserOneNextButton() override;
    void browserOneLimit(int milliseconds) override;
    void browserOneOnTop() override;
    void browserTwoReloadLists() override;
    QString browserTwoLocationName() const override;
    PageSource pageSource() const override;
    void choosePageSource(PageSource source) override;
    bool AddAreas(int neighborhoodTable, int suburbTable, int addMode, int neighborhood) override;
    void pumpEvents() override;

private:
    AppContext& m_ctx;
    MainWindowCalls& m_main;
    Links m_links;
    frmOpt* m_options = nullptr; // while it is shown
};
