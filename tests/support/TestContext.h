#pragma once

#include "ScriptedPrompts.h"
#include "TestFolders.h"
#include "addressdata/TextDatabase.h"
#include "core/AppContext.h"

// A connection probe whose answer a test sets.
class FakeProbe : public ConnectionProbe
{
public:
    bool up = true;
    bool isUp() const override { return up; }
};

// Everything a rule of the program is handed, in private temporary folders:
// a fresh shared state, a settings store, scripted prompts, a probe that
// says the connection is up, and an unopened main database.
struct TestContext
{
    TestFolders folders;
    SharedState state;
    SettingsStore settings{folders.config()};
    ScriptedPrompts prompts;
    FakeProbe probe;
    TextDatabase db;
    AppContext ctx{state, settings, prompts, probe, db, folders.appPath()};

    TestContext();

    // Names the settings application and the data files as the entry does.
    void useDataFolder();
    // A new main database in the data folder, opened as gdbMain.
    void createAndOpenDatabase();
};
