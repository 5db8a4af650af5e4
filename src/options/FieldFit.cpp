#include "FieldFit.h"

#include "addressdata/TextDatabase.h"
#include "core/PromptService.h"

bool FitsField(PromptService& prompts, const QString& text)
{
    if (text.size() <= TextDatabase::MaxFieldLength)
        return true;
    prompts.msgBox(QStringLiteral("This entry is too long! (%1 characters at most)")
                       .arg(TextDatabase::MaxFieldLength),
                   PromptService::Exclamation);
    return false;
}
