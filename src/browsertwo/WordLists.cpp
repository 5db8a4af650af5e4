#include "WordLists.h"

#include "WordListDialogs.h"
#include "WordListHost.h"
#include "WordRule.h"
#include "core/AppContext.h"

#include <QCoreApplication>

namespace {
const QString Aborted = QStringLiteral("abort");
} // namespace

WordLists::WordLists(AppContext& ctx, WordListHost& host, WordListDialogs& dialogs)
    : m_ctx(ctx), m_host(host), m_dialogs(dialogs), m_db(ctx.state.gstrDataPath),
      m_sources(ctx, host, dialogs)
{
}

bool WordLists::OpenWordListDb()
{
    try {
        return m_db.open();
    } catch (const DbError&) {
        return false;
    }
}

// Shows the name dialog and waits for its answer with the window loop
// running; a dialog closed without one counts as Cancel.
QString WordLists::askListName()
{
    // One question at a time: a second Add while the dialog waits is Cancel.
    if (m_asking)
        return Aborted;
    m_asking = true;
    QString& answer = m_ctx.state.gstrNewListName;
    answer.clear();
    m_dialogs.showListName();
    while (answer.isEmpty() && m_dialogs.listNameShown())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const QString name = answer.isEmpty() ? Aborted : answer;
    answer.clear();
    m_asking = false;
    return name;
}

bool WordLists::CreateWordListDb()
{
    const QString name = askListName();
    if (name == Aborted)
        return false;
    try {
        m_db.create(name, m_ctx.state.gstrSites);
        return true;
    } catch (const DbError&) {
        m_ctx.MsgBox(QStringLiteral("An error has occurred!"));
        return false;
    }
}

QStringList WordLists::FillListNames()
{
    try {
        return m_db.isOpen() ? m_db.listNames() : QStringList();
    } catch (const DbError&) {
        return {};
    }
}

bool WordLists::LoadWordList(const QString& name)
{
    QVector<QString>& sites = m_ctx.state.gstrSites;
    sites = {QString("")};
    QStringList words;
    try {
        words = m_db.words(name);
    } catch (const DbError&) {
        return false;
    }
    // An empty table has no first record to move to: that is a failure.
    if (words.isEmpty())
        return false;
    int count = 0;
    for (const QString& word : words) {
        if (++count == WordRule::StopCount)
            break;
        sites.append(word);
    }
    m_host.Pseudo(count);
    return true;
}

// The stored lists are compared with gstrSites row by row, at most the first
// 100 of each. The count of matches is carried from list to list, so that
// matches at equal places add up across lists; the last word of gstrSites
// takes no part.
QString WordLists::refusal() const
{
    const QVector<QString>& sites = m_ctx.state.gstrSites;
    const int upper = sites.size() - 1;
    int lists = 0;
    int matches = 0;
    for (const QString& table : m_db.listNames()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        if (++lists == MaxLists + 1)
            return QStringLiteral("Maximum (20) number of lists Reached!");
        const QStringList stored = m_db.words(table);
        for (int r = 1; r <= stored.size() && r < upper; ++r) {
            if (sites[r] == stored[r - 1] && ++matches == DuplicateMatches)
                return QStringLiteral("This list already exists in the database!");
            if (r == DuplicateMatches)
                break;
        }
    }
    return QString();
}

bool WordLists::AddWordList()
{
    if (!m_db.isOpen())
        return false;
    try {
        const QString refused = refusal();
        if (!refused.isEmpty()) {
            m_ctx.MsgBox(refused, PromptService::Information, QStringLiteral("Terminating"));
            return false;
        }
        const QString name = askListName();
        if (name == Aborted)
            return false;
        m_db.addList(name, m_ctx.state.gstrSites);
    } catch (const DbError& e) {
        WordSources::errorNotice(m_ctx, QString::fromStdString(e.what()));
        return false;
    }
    return true;
}

bool WordLists::DeleteWordList(const QString& name)
{
    try {
        m_db.dropList(name);
        return true;
    } catch (const DbError&) {
        return false;
    }
}

bool WordLists::PickWordSource(const QString& text)
{
    return m_sources.PickWordSource(text);
}
