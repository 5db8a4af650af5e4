#pragma once

#include "WordListDialogs.h"
#include "WordLists.h"
#include "frmNPListName.h"

#include <QPointer>

class QWidget;

// Browser Two's word lists and word sources as the program wires them in:
// the rules behind WordListActions with their two dialogs, frmNPListName
// and frmMdb, shown over the given window.
class WordListWindows : public WordListDialogs
{
public:
    WordListWindows(AppContext& ctx, WordListHost& host, QWidget* parent = nullptr);
    ~WordListWindows() override;

    WordListActions& actions() { return m_lists; }
    WordLists& lists() { return m_lists; }
    // The name dialog while it is open, else null.
    frmNPListName* listNameDialog() const { return m_listName; }

    void showListName() override;
    bool listNameShown() const override;
    void showMdb(MdbChooser& chooser) override;

private:
    AppContext& m_ctx;
    QWidget* m_parent;
    WordLists m_lists;
    QPointer<frmNPListName> m_listName;
};
