#pragma once

#include "core/Controls.h"

#include <QDateTime>
#include <QObject>
#include <functional>

class AddressComposer;
class ComposerHooks;
class NavigatorHost;
class NavigatorWindows;
struct AppContext;
struct NavigatorControls;

// The saved links of the region on show: the notes in cmbSavedLinks of the
// main window and in the list of the saved-links panel, the view of one
// link in the composer with the way back to the address that was on show,
// and saving and deleting links in UsaSaved or JapanSaved.
//
// gastrSavedLinks and gintSavedLinkTop mirror the table; list position is
// the row. An empty table leaves both as they were.
class SavedLinks : public QObject
{
    Q_OBJECT
public:
    // The limit on the count of records that a save tests for. The message
    // says one less, and a table beyond it is not stopped.
    static constexpr int MaxRecords = 1001;
    static constexpr const char* LimitMessage = "Maximum number of Links (1,000) already saved!";

    SavedLinks(AppContext& ctx, NavigatorControls& controls, AddressComposer& composer,
               ComposerHooks& hooks, NavigatorHost& host, NavigatorWindows& windows);

    // The list of the saved-links panel and the panel's caption, which the
    // panel's window shows.
    ListControl lstLinks{QStringLiteral("lstLinks")};
    Control panelCaption{QStringLiteral("frmWBOLinks")};

    // The address that was on show when the first link was chosen.
    struct ViewState
    {
        QString neighborhood;
        QString suburb;
        QString prefix;
        QString suffix;
        QString comment;
    };
    bool SavedViewActive = false;
    ViewState SavedViewState;

    // The time a save writes into its "Saved on" line.
    std::function<QDateTime()> clock = &QDateTime::currentDateTime;

    // table: the row of the saved table in gastrTables, 2 or 6.
    void LoadSavedLinks(int table);
    void LeaveSavedView();

    // Events of cmbSavedLinks and cmdSavedLinks.
    void Click();
    void Change();
    void SaveClick();   // member 0: Save, or Return while a link is on show
    void DeleteClick(); // member 1

    // The Ok of the note dialog: stores the address on show with note.
    void SaveNote(const QString& note);

    // The time form "9:15:32 PM" shortened to "9:15PM".
    static QString TimeText(const QString& time);
    // "Saved on: Date = " + the short date + " Time = " + the time text.
    static QString SavedOnText(const QDateTime& when);
    // The note as a field holds it: one line, at most 255 characters.
    static QString StorableNote(const QString& note);

private:
    void connectEvents();
    void Return();
    void restoreView();
    bool showDuplicate();
    int regionTable() const;
    QString tableName(int table) const;
    QStringList fieldNames(int table) const;

    AppContext& m_ctx;
    NavigatorControls& m_c;
    AddressComposer& m_composer;
    ComposerHooks& m_hooks;
    NavigatorHost& m_host;
    NavigatorWindows& m_windows;
};
