#pragma once

#include "ListNameRules.h"

#include <QDialog>

class QLineEdit;

// "New List Name": asks, modeless, the name of a word list to store. Its
// rules live in ListNameRules; the box takes letters, digits and blanks.
class frmNPListName : public QDialog
{
    Q_OBJECT
public:
    frmNPListName(SharedState& state, PromptService& prompts, QWidget* parent = nullptr);

    ListNameRules& rules() { return m_rules; }
    QLineEdit* txtNLName() const { return m_name; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

public:
    void done(int result) override;

private:
    ListNameRules m_rules;
    QLineEdit* m_name = nullptr;
    bool m_answered = false;
};
