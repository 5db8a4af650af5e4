#pragma once

#include <QString>

class WordListDialogs;
class WordListHost;
struct AppContext;

// Reads Browser Two's word source into gstrSites: a text file or a text
// field of a database file, remembered in the settings between runs.
class WordSources
{
public:
    static constexpr const char* SampleFile = "wbtsampl.txt";

    WordSources(AppContext& ctx, WordListHost& host, WordListDialogs& dialogs);

    // With the empty text reads the word source; otherwise keeps the text,
    // lower case, in gstrMdbResult and reads nothing.
    bool PickWordSource(const QString& text);
    bool ReadWordSource();

    // The folder the file dialog starts in on first use: the data folder,
    // where the program's sample word source is put if it is not there.
    QString sampleFolder() const;

    // The notice of a source that could not be read.
    static void errorNotice(AppContext& ctx, const QString& description);

private:
    void save(const char* key, const QString& value);
    QString askFile(const QString& folder) const;
    bool readDatabase(const QString& file, bool chosenAgain);
    bool readTextFile(const QString& file);

    AppContext& m_ctx;
    WordListHost& m_host;
    WordListDialogs& m_dialogs;
};
