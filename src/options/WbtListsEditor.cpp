#include "WbtListsEditor.h"

#include "FieldFit.h"
#include "OptionsHost.h"
#include "addressdata/TextDatabase.h"
#include "browsertwo/WbtBuiltIns.h"
#include "core/AppContext.h"
#include "core/Endpoints.h"
#include "core/SettingsKeys.h"

namespace {
// The order in which this dialog seeds an empty server table.
QStringList seedServers()
{
    return {Endpoint::TripodBaseUrl, Endpoint::XoomBaseUrl, Endpoint::SprintmailBaseUrl,
            Endpoint::EarthLinkBaseUrl, Endpoint::AolBaseUrl};
}
} // namespace

WbtListsEditor::WbtListsEditor(AppContext& ctx, OptionsHost& host) : m_ctx(ctx), m_host(host)
{
    fraOptions.setText(QStringLiteral("Web Browser Two Options (WBTwo)"));
    chkUsingWBTAuto.setText(QStringLiteral("Use auto mode."));
    chkWBTPromptForNew.setText(QStringLiteral("Prompt to select new source file on open."));
    Label10.setText(QStringLiteral("Exact Server names:"));
    Label11.setText(QStringLiteral("Exact titles found on pages to skip:"));
    Label12.setText(QStringLiteral("Type new items below!  (then click add above)"));
    for (int i = 0; i < 2; ++i) {
        cmdWBTAddServer[i].setText(QStringLiteral("Add"));
        cmdWBTDelServer[i].setText(QStringLiteral("Del"));
        connect(&cmdWBTAddServer[i], &Control::clicked, this, [this, i] { AddClick(i); });
        connect(&cmdWBTDelServer[i], &Control::clicked, this, [this, i] { DelClick(i); });
    }
}

void WbtListsEditor::LoadWbtLists()
{
    cmbWBTAddServer.clear();
    cmbWBTAddBadTitles.clear();
    strBaseUrls.clear();
    strBaseUrlCounters.clear();
    strBadTitles.clear();
    try {
        loadServers();
        loadTitles();
    } catch (const std::exception&) {
    }
    QString current = m_ctx.GetSetting(Sect::WebBrwsrTwo, Key::CurrentServer, "");
    if (current.isEmpty() || !strBaseUrls.contains(current))
        current = strBaseUrls.value(0);
    const int at = strBaseUrls.indexOf(current);
    if (at >= 0)
        cmbWBTAddServer.setListIndex(at);
}

void WbtListsEditor::loadServers()
{
    const auto& t = m_ctx.state.gastrTables[Tbl::WbtBaseUrl];
    const auto rows = m_ctx.gdbMain.readAll(t[0], {t[1], t[2]});
    if (rows.isEmpty()) {
        QVector<QStringList> seed;
        for (const QString& url : seedServers())
            seed.append({url, QStringLiteral("1")});
        m_ctx.gdbMain.append(t[0], {t[1], t[2]}, seed);
        for (const QStringList& row : seed) {
            strBaseUrls.append(row[0]);
            strBaseUrlCounters.append(row[0] + QLatin1Char(' ') + row[1]);
            cmbWBTAddServer.addItem(row[0]);
        }
        return;
    }
    for (const TextRecord& row : rows) {
        m_host.pumpEvents();
        const QString url = NullToEmpty(row.fields.value(0));
        strBaseUrls.append(url);
        cmbWBTAddServer.addItem(url);
        strBaseUrlCounters.append(url + QLatin1Char(' ') + NullToEmpty(row.fields.value(1)));
        if (strBaseUrls.size() >= MaxServersRead)
            break;
    }
}

void WbtListsEditor::loadTitles()
{
    const auto& t = m_ctx.state.gastrTables[Tbl::WbtBadTitles];
    const auto rows = m_ctx.gdbMain.readAll(t[0], {t[1]});
    if (rows.isEmpty()) {
        QVector<QStringList> seed;
        for (const QString& title : WbtBuiltInBadTitles())
            seed.append({title});
        m_ctx.gdbMain.append(t[0], {t[1]}, seed);
        for (const QStringList& row : seed) {
            strBadTitles.append(row[0]);
            cmbWBTAddBadTitles.addItem(row[0]);
        }
        return;
    }
    for (const TextRecord& row : rows) {
        m_host.pumpEvents();
        strBadTitles.append(NullToEmpty(row.fields.value(0)));
        cmbWBTAddBadTitles.addItem(strBadTitles.last());
        if (strBadTitles.size() >= MaxTitlesRead)
            break;
    }
}

void WbtListsEditor::AddClick(int index)
{
    if (txtWBTAdd.text().isEmpty()) {
        m_ctx.MsgBox(QStringLiteral("You must enter ") +
                     (index == 0 ? QStringLiteral("Server's URL") : QStringLiteral("Page Title")) +
                     QStringLiteral(" in the text box below!"));
        return;
    }
    QString text = txtWBTAdd.text();
    ListControl& list = index == 0 ? cmbWBTAddServer : cmbWBTAddBadTitles;
    if (index == 0)
        text = text.remove(QLatin1Char(' ')).toLower();
    if (!FitsField(m_ctx.prompts, text))
        return;
    for (const QString& entry : list.items())
        if (entry.contains(text, Qt::CaseSensitive)) {
            m_ctx.MsgBox(index == 0 ? QStringLiteral("This Server's URL already exists!")
                                    : QStringLiteral("This Page Title already exists!"));
            return;
        }
    blnWbtListsChanged = true;
    list.addItem(text);
    txtWBTAdd.setText(QString(""));
}

void WbtListsEditor::DelClick(int index)
{
    ListControl& list = index == 0 ? cmbWBTAddServer : cmbWBTAddBadTitles;
    if (list.listIndex() < 0) {
        m_ctx.MsgBox(index == 0 ? QStringLiteral("You must select a Server's URL!")
                                : QStringLiteral("You must select a Page Title!"));
        return;
    }
    if (index == 0 && list.listCount() < 2) {
        m_ctx.MsgBox(QStringLiteral("You can not delete the last Server!"));
        return;
    }
    blnWbtListsChanged = true;
    list.removeItem(list.listIndex());
}

// The counter behind the first blank of the first line that holds the
// address; a new server starts at 1.
QString WbtListsEditor::counterOf(const QString& url) const
{
    for (const QString& line : strBaseUrlCounters) {
        if (!line.contains(url, Qt::CaseSensitive))
            continue;
        const int blank = line.indexOf(QLatin1Char(' '));
        const QString counter = blank >= 0 ? line.mid(blank + 1) : QString();
        return counter.isEmpty() ? QStringLiteral("1") : counter;
    }
    return QStringLiteral("1");
}

void WbtListsEditor::SaveLists()
{
    const auto& servers = m_ctx.state.gastrTables[Tbl::WbtBaseUrl];
    const auto& titles = m_ctx.state.gastrTables[Tbl::WbtBadTitles];
    QVector<QStringList> serverRows;
    for (const QString& url : cmbWBTAddServer.items())
        serverRows.append({url, counterOf(url)});
    QVector<QStringList> titleRows;
    for (const QString& title : cmbWBTAddBadTitles.items())
        titleRows.append({title});
    m_ctx.gdbMain.runInTransaction([&] {
        m_ctx.gdbMain.removeAll(servers[0]);
        m_ctx.gdbMain.removeAll(titles[0]);
        m_ctx.gdbMain.append(servers[0], {servers[1], servers[2]}, serverRows);
        m_ctx.gdbMain.append(titles[0], {titles[1]}, titleRows);
    });
}

void WbtListsEditor::ResetDefaults()
{
    try {
        m_ctx.gdbMain.runInTransaction([this] {
            m_ctx.gdbMain.removeAll(m_ctx.state.gastrTables[Tbl::WbtBaseUrl][0]);
            m_ctx.gdbMain.removeAll(m_ctx.state.gastrTables[Tbl::WbtBadTitles][0]);
        });
    } catch (const std::exception&) {
    }
    LoadWbtLists();
}
