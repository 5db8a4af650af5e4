#pragma once

#include "WordListActions.h"
#include "WordListDb.h"
#include "WordSources.h"

class WordListDialogs;
class WordListHost;
struct AppContext;

// Browser Two's stored word lists and word sources behind WordListActions:
// the list database in the data folder and the file or database source.
class WordLists : public WordListActions
{
public:
    static constexpr int MaxLists = 20;
    // Matches at equal places that make a list a copy of stored ones.
    static constexpr int DuplicateMatches = 100;

    WordLists(AppContext& ctx, WordListHost& host, WordListDialogs& dialogs);

    bool OpenWordListDb() override;
    bool CreateWordListDb() override;
    QStringList FillListNames() override;
    bool LoadWordList(const QString& name) override;
    bool AddWordList() override;
    bool DeleteWordList(const QString& name) override;
    bool PickWordSource(const QString& text) override;

    // Lets go of the list database, as Browser Two's window closes.
    void release() override { m_db.release(); }
    WordListDb& database() { return m_db; }
    WordSources& sources() { return m_sources; }

private:
    QString askListName();
    // The notice that refuses the words in gstrSites, or the empty text.
    QString refusal() const;

    AppContext& m_ctx;
    WordListHost& m_host;
    WordListDialogs& m_dialogs;
    WordListDb m_db;
    WordSources m_sources;
    bool m_asking = false;
};
