#include "WordListWindows.h"

#include "MdbChooser.h"
#include "core/AppContext.h"
#include "frmMdb.h"
#include "frmNPListName.h"

WordListWindows::WordListWindows(AppContext& ctx, WordListHost& host, QWidget* parent)
    : m_ctx(ctx), m_parent(parent), m_lists(ctx, host, *this)
{
}

WordListWindows::~WordListWindows()
{
    delete m_listName;
}

void WordListWindows::showListName()
{
    // A dialog that has answered is gone, or about to go: each question
    // gets a new one.
    if (!listNameShown()) {
        delete m_listName;
        m_listName = new frmNPListName(m_ctx.state, m_ctx.prompts, m_parent);
    }
    m_listName->show();
    m_listName->raise();
    m_listName->activateWindow();
}

bool WordListWindows::listNameShown() const
{
    return m_listName && m_listName->isVisible();
}

void WordListWindows::showMdb(MdbChooser& chooser)
{
    frmMdb dialog(chooser, m_parent);
    if (!chooser.isUnloaded())
        dialog.exec();
}
