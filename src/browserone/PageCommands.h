#pragma once

#include <QString>

class BrowserControl;
class PromptService;

// The page commands that the browser windows share.
namespace PageCommands {
// Asks where to save the page, starting in the data folder, and saves it.
void SaveAs(BrowserControl& browser, PromptService& prompts, const QString& dataPath);
// Adds the page to the bookmarks file of the data folder.
void AddFavorite(const BrowserControl& browser, const QString& dataPath);
} // namespace PageCommands
