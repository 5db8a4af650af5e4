#pragma once

#include "core/Controls.h"

#include <QObject>
#include <QStringList>

class OptionsHost;
struct AppContext;

// The "WBTwo" tab of the options dialog: the server base addresses that
// Browser Two walks and the page titles that mark a dead page. The lists
// are edited in the combo boxes and written at Ok or Apply; a server that
// stays keeps its counter over the rewrite.
class WbtListsEditor : public QObject
{
    Q_OBJECT
public:
    static constexpr int MaxServersRead = 100;
    static constexpr int MaxTitlesRead = 200;

    WbtListsEditor(AppContext& ctx, OptionsHost& host);

    Control fraOptions{QStringLiteral("fraOptions[5]")};
    Control chkUsingWBTAuto{QStringLiteral("chkUsingWBTAuto")};
    Control chkWBTPromptForNew{QStringLiteral("chkWBTPromptForNew")};
    Control Label10{QStringLiteral("Label10")};
    ListControl cmbWBTAddServer{QStringLiteral("cmbWBTAddServer")};
    Control Label11{QStringLiteral("Label11")};
    ListControl cmbWBTAddBadTitles{QStringLiteral("cmbWBTAddBadTitles")};
    Control cmdWBTAddServer[2] = {Control(QStringLiteral("cmdWBTAddServer[0]")),
                                  Control(QStringLiteral("cmdWBTAddServer[1]"))};
    Control cmdWBTDelServer[2] = {Control(QStringLiteral("cmdWBTDelServer[0]")),
                                  Control(QStringLiteral("cmdWBTDelServer[1]"))};
    Control Label12{QStringLiteral("Label12")};
    Control txtWBTAdd{QStringLiteral("txtWBTAdd")};

    bool blnWbtListsChanged = false;

    // Fills both lists from the tables, writing the built-in rows into an
    // empty table, and selects the current server.
    void LoadWbtLists();
    void AddClick(int index);
    void DelClick(int index);
    // Rewrites both tables from the lists, in one transaction.
    void SaveLists();
    // Reset Defaults: both tables emptied and the built-in rows written.
    void ResetDefaults();

private:
    void loadServers();
    void loadTitles();
    QString counterOf(const QString& url) const;

    AppContext& m_ctx;
    OptionsHost& m_host;
    QStringList strBaseUrls;
    QStringList strBaseUrlCounters;
    QStringList strBadTitles;
};
