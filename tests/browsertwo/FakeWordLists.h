#pragma once

#include "browsertwo/WordListActions.h"
#include "browsertwo/WordListHost.h"
#include "core/SharedState.h"

#include <QMap>
#include <functional>

// Stored lists and a word source kept in memory: what the walker calls, with
// the calls written down. Loading a list fills gstrSites and tells the host.
class FakeWordLists : public WordListActions
{
public:
    explicit FakeWordLists(SharedState& state) : m_state(state) {}

    WordListHost* host = nullptr;
    bool dbExists = true;
    bool createAnswer = true;
    QMap<QString, QStringList> stored;
    QStringList source; // the words of the word source
    QString sourceName = "words.txt";
    QStringList calls;
    // Runs while the word source is read, as the user's clicks in a dialog do.
    std::function<void()> whileReading;

    void release() override { calls << "release"; }
    bool OpenWordListDb() override
    {
        calls << "open";
        return dbExists;
    }
    bool CreateWordListDb() override
    {
        calls << "create";
        dbExists = createAnswer;
        return createAnswer;
    }
    QStringList FillListNames() override { return stored.keys(); }
    bool LoadWordList(const QString& name) override
    {
        calls << "load " + name;
        if (!stored.contains(name))
            return false;
        fill(stored.value(name));
        return true;
    }
    bool AddWordList() override
    {
        calls << "add";
        stored.insert("added", QStringList(m_state.gstrSites.mid(1).toList()));
        return true;
    }
    bool DeleteWordList(const QString& name) override
    {
        calls << "delete " + name;
        return stored.remove(name) > 0;
    }
    bool PickWordSource(const QString& text) override
    {
        calls << "pick " + text;
        if (!text.isEmpty()) {
            m_state.gstrMdbResult = text.toLower();
            return true;
        }
        if (whileReading)
            whileReading();
        fill(source, false);
        if (host) {
            host->GPysuedo(m_state.gstrSites.size() - 1); // the words read
            host->WBTPassSometext(sourceName);
        }
        return !source.isEmpty();
    }

    // gstrSites := the words, from 1; a stored list tells the walker at once.
    void fill(const QStringList& words, bool tellWalker = true)
    {
        m_state.gstrSites = {QString()};
        for (const QString& word : words)
            m_state.gstrSites.append(word);
        if (host && tellWalker)
            host->Pseudo(m_state.gstrSites.size() - 1); // the words read
    }

private:
    SharedState& m_state;
};
