#pragma once

#include "ConnectionProbe.h"
#include "PromptService.h"
#include "SettingsStore.h"
#include "SharedState.h"

class TextDatabase;

// What every window and rule of the program is handed: the shared state,
// the settings store, the prompt service, the connection probe and the open
// main database. Made once by the entry, or by a test.
struct AppContext
{
    SharedState& state;
    SettingsStore& settings;
    PromptService& prompts;
    ConnectionProbe& probe;
    TextDatabase& gdbMain;
    QString appPath; // the program's own folder, for defaults that name it

    QString GetSetting(const QString& section, const QString& key,
                       const QString& defaultValue = QString()) const
    {
        return settings.GetSetting(state.gstrAppName, section, key, defaultValue);
    }
    void SaveSetting(const QString& section, const QString& key, const QString& value)
    {
        settings.SaveSetting(state.gstrAppName, section, key, value);
    }
    bool ConnectionUp() const { return probe.isUp(); }
    int MsgBox(const QString& text, int style = PromptService::OkOnly,
               const QString& title = QString())
    {
        return prompts.msgBox(text, style, title);
    }
};
