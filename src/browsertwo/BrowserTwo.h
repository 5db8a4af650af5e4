#pragma once

#include "WbtCall.h"
#include "core/Controls.h"

#include <QObject>
#include <QStringList>
#include <QTimer>
#include <array>

struct AppContext;
class BrowserControl;
class BrowserTwoHost;
class WordListActions;

// The rules of frmWBTwo, the site walker: a base address from the server
// list (with a suburb for the servers that have them) and a word of the
// loaded word list make one address, and the walker steps through the
// words. In auto mode a page whose title is a known missing-page title is
// left 1.5 s after its load by itself; the walk stops at the first page
// whose title it does not know.
class BrowserTwo : public QObject
{
    Q_OBJECT
public:
    static constexpr const char* UrlHint = "Right Click Page For IE Menu!";
    static constexpr int AutoInterval = 1500;
    enum Tool
    {
        Prev = 0,
        Next = 1,
        Back = 2,
        Save = 3,
        View = 4,
        Del = 5,
        Stop = 6
    };
    enum Row
    {
        ServerRow = 0,
        ButtonRow = 1,
        ListRow = 2
    };

    BrowserTwo(AppContext& ctx, BrowserControl& browser, BrowserTwoHost& host,
               WordListActions& lists);
    ~BrowserTwo() override;

    // Controls of the window.
    Control form{QStringLiteral("frmWBTwo")}; // its text is the caption
    Control txtAddressBar{QStringLiteral("txtAddressBar")};
    ListControl cmbServer{QStringLiteral("cmbServer")};
    ListControl cboSWSuburbs{QStringLiteral("cboSWSuburbs")};
    SliderControl hscrWBT{QStringLiteral("hscrWBT"), 1, 1};
    ListControl cboLists{QStringLiteral("cboLists")};
    Control cmdUnload{QStringLiteral("cmdUnload")};
    std::array<Control*, 7> cmdWBTTools{};
    std::array<Control*, 3> cmdLists{};
    std::array<Control*, 3> picTools{};     // the three tool rows
    std::array<Control*, 3> mnuToolsSubs{}; // their menu entries
    std::array<Control*, 4> panels{};       // StatusBarWBT's panels 1 to 3
    QTimer tmrAuto;

    // Fields of the window.
    QString CurrentUrl;
    QString PageTitle;
    QString ProgressText;
    QStringList ServerUrls;
    QStringList BadTitles;
    QString ServerBase;
    QString SuburbBase;
    QString CurrentWord;
    QString ActiveListName;
    qint32 CurrentSiteIndex = 1;
    qint16 WordCount = 0;
    bool UserBusy = false;
    bool SkipPage = false;
    bool WindowReady = false;
    bool AddressBarEdited = false;
    bool ListLoaded = false;

    BrowserControl& browser() { return m_browser; }

    void Load();
    void Unload();
    void LoadServerList();
    void SavePosition();
    void Pseudo(int count);
    void WBTPassSometext(const QString& name);
    void NavigateSomeWhereElseTwo(const QString& url);
    void frmWBTCalls(WBTCall command);
    void ClosePopUpWindows();

    // The address of a word: the base in force followed by the word.
    QString addressOf(const QString& word) const;
    // The positions that stepping reaches from the current one on, in the
    // order of the walk: up to the next-to-last word.
    QStringList wordsAhead() const;
    // Makes words the list in force, from position 1, and opens the first;
    // stepping reaches every one of them.
    void offerWords(const QStringList& words);

    // Events.
    void ProgressChange(int progress, int progressMax);
    void NewWindow2(bool* cancel);
    void NavigateComplete2(const QString& url);
    void AutoTick();
    void ToolsClick(int index);
    void BarChange();
    void RowClick(int index);
    void SelectServer();
    void SuburbChange();
    void ComposeSuburbBase();
    void ListsClick(int index);
    void UnloadClick();
    void AddressBarKey(int key);
    // One of the tool rows' input controls gained (true) or lost the focus.
    void InputFocus(bool gained);
    void AltaVistaClick();
    void ExitClick();

signals:
    // The buttons of the saved links: Save, View and Del.
    void savedLinkTool(int index);

private:
    void step(int index);
    void judgePage();
    void fillListNames();
    bool showListRow();
    void readServerTables();
    void addSuburbServers();
    void applyAutoMode();
    void loadList(const QString& name);
    void deleteList(const QString& name);
    void savePlace();
    int upperBound() const;

    AppContext& m_ctx;
    BrowserControl& m_browser;
    BrowserTwoHost& m_host;
    WordListActions& m_lists;
};
