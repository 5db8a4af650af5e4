#include "PromptService.h"

bool ShowLines(PromptService& prompts, const QStringList& lines, const QString& title, bool ask)
{
    QString text;
    for (const QString& line : lines)
        text += line + QLatin1Char('\r');
    if (!ask) {
        prompts.msgBox(text, PromptService::Information, title);
        return false;
    }
    return prompts.msgBox(text, PromptService::YesNo | PromptService::Question, title) ==
           PromptService::Yes;
}
