#pragma once

#include "ItemIds.h"
#include "PageFiles.h"
#include "PageItems.h"
#include "PageText.h"
#include "core/Controls.h"

#include <QObject>
#include <array>
#include <functional>

struct AppContext;

// frmVBScript's rules: a page of form items with empty VBScript routines,
// built in memory one button at a time and written to a file in the output
// folder; also the ready-made one-page template and three-frame site.
class PageBuilder : public QObject
{
    Q_OBJECT
public:
    struct Links
    {
        // Opens a written page in the navigator's browser.
        std::function<void(const QString&)> openPage;
        std::function<void()> unload;
        // The ids of the items; empty for the clock-seeded ones.
        std::function<QString()> newItemId;
    };

    PageBuilder(AppContext& ctx, Links links, QObject* parent = nullptr);

    Control caption{QStringLiteral("frmVBScript")};
    // The members of the arrays that the window has; the others are null.
    std::array<Control*, 13> cmdVBSButtons{};
    std::array<Control*, 7> txtVBSText{};
    std::array<ListControl*, 9> cboVBSSelect{};
    ListControl cboBGColor{QStringLiteral("cboBGColor")};
    Control cmdBodyFont{QStringLiteral("cmdBodyFont")};
    Control cmdCenter{QStringLiteral("cmdCenter")};
    Control chkOpenFile{QStringLiteral("chkOpenFile")};
    Control cmdWriteToFile{QStringLiteral("cmdWriteToFile")};
    Control cmdThreeFrameSite{QStringLiteral("cmdThreeFrameSite")};
    Control cmdSkeleton{QStringLiteral("cmdSkeleton")};
    Control cmdClose{QStringLiteral("cmdClose")};
    Control lblOutPutFile{QStringLiteral("lblOutPutFile")};
    Control Label1{QStringLiteral("Label1")};

    // The lists filled and the page begun.
    void Load();
    // Empties the page.
    void Unload();
    const PageText& page() const { return m_page; }
    QString NewItemId();

private:
    void makeControls();
    void itemClick(int index);
    // viewName: the floating frame's page.
    void addItem(int index, const QString& id, const PageInputs& in, const QString& viewName);
    void writeClick();
    void skeletonClick();
    void threeFrameSiteClick();
    void centerClick();
    void bodyFontClick();
    PageInputs inputs() const;
    QString outputFile(const QString& name) const;
    // Writes the files all or none; false (the user told why) when they
    // could not be written.
    bool writeFiles(const QList<PageFiles::File>& files);
    void written(const QString& path);

    AppContext& m_ctx;
    Links m_links;
    ItemIds m_ids;
    PageText m_page;
};
