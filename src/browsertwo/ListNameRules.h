#pragma once

#include "core/Controls.h"

struct SharedState;
class PromptService;

// The rules of frmNPListName, which asks the name of a new word list. Ok
// leaves the name in gstrNewListName, Cancel leaves "abort" there.
class ListNameRules : public QObject
{
    Q_OBJECT
public:
    ListNameRules(SharedState& state, PromptService& prompts);

    Control form{QStringLiteral("frmNPListName")}; // its text is the caption
    Control Label1{QStringLiteral("Label1")};
    Control txtNLName{QStringLiteral("txtNLName")};
    Control cmdOk{QStringLiteral("cmdNLOK[0]")};
    Control cmdCancel{QStringLiteral("cmdNLOK[1]")};

    // Whether a typed character may go into the name: digits, the letters
    // A to Z and a to z, Backspace and the blank. Enter is no exception.
    static bool keyPasses(QChar key);

signals:
    // The dialog is done and goes.
    void unloaded();
    // The name box should take the focus again.
    void focusName();

private:
    void OkClick();
    void CancelClick();

    SharedState& m_state;
    PromptService& m_prompts;
};
