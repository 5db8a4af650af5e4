#include "ListNameRules.h"

#include "core/PromptService.h"
#include "core/SharedState.h"

namespace {
const QString Reserved = QStringLiteral("abort");
} // namespace

ListNameRules::ListNameRules(SharedState& state, PromptService& prompts)
    : m_state(state), m_prompts(prompts)
{
    form.setText(QStringLiteral("New List Name"));
    Label1.setText(
        QStringLiteral("Type a name for the word list currently loaded in Web browser two"));
    cmdOk.setText(QStringLiteral("Ok"));
    cmdCancel.setText(QStringLiteral("Cancel"));
    connect(&cmdOk, &Control::clicked, this, &ListNameRules::OkClick);
    connect(&cmdCancel, &Control::clicked, this, &ListNameRules::CancelClick);
}

bool ListNameRules::keyPasses(QChar key)
{
    const ushort c = key.unicode();
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == 8 ||
           c == 32;
}

void ListNameRules::OkClick()
{
    const QString name = txtNLName.text().trimmed();
    // "abort" is the answer of Cancel, so no list may bear it; the test is
    // exact, and "Abort" is a name like any other.
    if (name == Reserved) {
        m_prompts.msgBox(QStringLiteral("abort is not allowed, please choose another!"));
        txtNLName.setText(QString(""));
        emit focusName();
        return;
    }
    if (name.isEmpty()) {
        m_prompts.msgBox(QStringLiteral("Please type a name for this word list!"));
        emit focusName();
        return;
    }
    m_state.gstrNewListName = name;
    emit unloaded();
}

void ListNameRules::CancelClick()
{
    m_state.gstrNewListName = Reserved;
    emit unloaded();
}
