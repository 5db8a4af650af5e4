#pragma once

#include "TestContext.h"
#include "browsertwo/ListNameRules.h"
#include "browsertwo/MdbChooser.h"
#include "browsertwo/WordListDialogs.h"
#include "browsertwo/WordListHost.h"
#include "browsertwo/WordLists.h"

#include <functional>
#include <memory>

// Browser Two's window and the main window as the word lists call them:
// every call written down as a short text ("Pseudo 3", "name a.txt").
class RecordingWordListHost : public WordListHost
{
public:
    QStringList calls;
    void Pseudo(int count) override { calls << QStringLiteral("Pseudo %1").arg(count); }
    void WBTPassSometext(const QString& name) override { calls << "name " + name; }
    void GPysuedo(int count) override { calls << QStringLiteral("GPysuedo %1").arg(count); }
    void clearTopmost() override { calls << QStringLiteral("clearTopmost"); }
};

// The two dialogs played by the test: the name dialog types the next queued
// name and presses Ok (with none queued it is closed unanswered); the
// database dialog runs playMdb, if set.
class PlayedDialogs : public WordListDialogs
{
public:
    PlayedDialogs(SharedState& state, PromptService& prompts) : m_state(state), m_prompts(prompts)
    {
    }

    QStringList names;
    std::function<void(MdbChooser&)> playMdb;
    int mdbCount = 0;

    void showListName() override
    {
        if (names.isEmpty())
            return;
        ListNameRules rules(m_state, m_prompts);
        rules.txtNLName.setText(names.takeFirst());
        rules.cmdOk.click();
    }
    bool listNameShown() const override { return false; }
    void showMdb(MdbChooser& chooser) override
    {
        ++mdbCount;
        if (playMdb)
            playMdb(chooser);
    }

private:
    SharedState& m_state;
    PromptService& m_prompts;
};

// The word lists' rules in private folders, with the data folder in use.
struct WordListRig
{
    TestContext t;
    RecordingWordListHost host;
    PlayedDialogs dialogs{t.state, t.prompts};
    std::unique_ptr<WordLists> lists;

    WordListRig()
    {
        t.useDataFolder();
        lists = std::make_unique<WordLists>(t.ctx, host, dialogs);
    }

    // gstrSites as a source leaves it: entry 0 empty, then the words.
    void setSites(const QStringList& words)
    {
        t.state.gstrSites = {QString("")};
        for (const QString& w : words)
            t.state.gstrSites.append(w);
    }
    QStringList sites() const
    {
        return QStringList(t.state.gstrSites.begin() + 1, t.state.gstrSites.end());
    }
};

// Words w0, w1, ... with a prefix.
inline QStringList numberedWords(int count, const QString& prefix = QStringLiteral("w"))
{
    QStringList words;
    for (int i = 0; i < count; ++i)
        words << prefix + QString::number(i);
    return words;
}
