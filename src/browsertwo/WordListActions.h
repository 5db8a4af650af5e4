#pragma once

#include <QString>
#include <QStringList>

// The stored word lists and the word sources, as Browser Two's window and
// the main window's "Web Browser Two" entry use them. Results are true on
// success. The words land in SharedState::gstrSites; counts and names are
// handed back through WordListHost.
class WordListActions
{
public:
    virtual ~WordListActions() = default;

    // Opens the list database, restoring it from its backup when damaged.
    virtual bool OpenWordListDb() = 0;
    // Asks a name and creates the database with gstrSites as its one list.
    virtual bool CreateWordListDb() = 0;
    // The names of the stored lists, for cboLists.
    virtual QStringList FillListNames() = 0;
    // Replaces gstrSites by the stored list and calls WordListHost::Pseudo.
    virtual bool LoadWordList(const QString& name) = 0;
    virtual bool AddWordList() = 0;
    virtual bool DeleteWordList(const QString& name) = 0;
    // With an empty text reads the word source (file or database), which
    // ends with WordListHost::GPysuedo and WBTPassSometext; otherwise keeps
    // the text in lower case as gstrMdbResult ("aborted" cancels).
    virtual bool PickWordSource(const QString& text) = 0;
    // Lets go of the list database: the walker's Unload.
    virtual void release() = 0;
};
