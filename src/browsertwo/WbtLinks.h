#pragma once

#include "core/Controls.h"

#include <QObject>
#include <QStringList>

struct AppContext;
class BrowserTwo;
class BrowserTwoHost;
class WbtLinksHost;

// Browser Two's saved links, apart from the main window's: the table
// "wbtlinks" of the main database with an address of at most 100
// characters in lower case and the user's note. Save asks for the note in
// frmWBTNote; View opens and closes frmWBTLinks, whose list holds the notes;
// Del removes the link chosen there.
class WbtLinks : public QObject
{
    Q_OBJECT
public:
    // The table is tested for exactly this count: it may reach 1001 rows
    // although the notice speaks of 1,000.
    static constexpr int LinkLimit = 1001;
    static constexpr int LinkLength = 100;

    WbtLinks(AppContext& ctx, BrowserTwo& walker, BrowserTwoHost& walkerHost, WbtLinksHost& host);

    // frmWBTNote's text box and frmWBTLinks' list and caption.
    Control txtNote{QStringLiteral("txtNote")};
    ListControl lstWBTLinks{QStringLiteral("lstWBTLinks")};
    Control linksCaption{QStringLiteral("frmWBTLinks")};

    QStringList gstrWbtLinks; // the links of lstWBTLinks' entries
    bool gblnWBTLinksOpen = false;
    bool gblnWBTNoteOpen = false;
    QString NoteLink; // the link the open note is for

    // The buttons Save, View and Del of the walker.
    void SaveClick();
    void ViewClick();
    void DelClick();

    // frmWBTNote.
    void GetLinkValue(const QString& address);
    void NoteLoad();
    void NoteOkClick();
    void NoteUnload();

    // frmWBTLinks.
    void ListClick();
    void ListDoubleClick();
    // The window closes by its own close box or with the walker.
    void LinksQueryUnload();

private:
    bool alreadySaved(const QString& address);
    void openLinks();
    // Reads the table into the list; the number of rows read.
    int readLinks();
    void saveLinksPlace();
    QString table() const;
    QStringList fields() const;

    AppContext& m_ctx;
    BrowserTwo& m_walker;
    BrowserTwoHost& m_walkerHost;
    WbtLinksHost& m_host;
};
