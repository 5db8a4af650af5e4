#include "PageCommands.h"

#include "BrowserControl.h"
#include "Favorites.h"
#include "core/PromptService.h"

namespace PageCommands {

void SaveAs(BrowserControl& browser, PromptService& prompts, const QString& dataPath)
{
    const QString path =
        prompts.saveFileName(QStringLiteral("Save Web Page"), dataPath + QStringLiteral("page.htm"),
                             {QStringLiteral("Web pages (*.htm *.html)")}, 0);
    if (!path.isEmpty())
        browser.SaveAs(path);
}

void AddFavorite(const BrowserControl& browser, const QString& dataPath)
{
    Favorites::AddFavorite(dataPath + QLatin1String(Favorites::FileName), browser.LocationURL(),
                           browser.LocationName());
}

} // namespace PageCommands
