#pragma once

#include <QString>

class PromptService;

// Whether a typed entry fits a field of the stored tables; one that does not
// is refused with a message here, rather than failing the whole rewrite at
// Ok.
bool FitsField(PromptService& prompts, const QString& text);
