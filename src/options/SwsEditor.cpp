#include "SwsEditor.h"

#include "FieldFit.h"
#include "addressdata/TextDatabase.h"
#include "browsertwo/ServersWithSuburbs.h"
#include "core/AppContext.h"

namespace {
const char* const NoSuburb = "No Suburb in the Suburb Text Box!";
const char* const SpacesTitle = "Spaces Not Allowed";
} // namespace

SwsEditor::SwsEditor(AppContext& ctx) : m_ctx(ctx)
{
    fraOptions.setText(QStringLiteral("WBTwo Servers With Suburbs Add/Remove"));
    lblWBTSWS[0].setText(QStringLiteral("Server"));
    lblWBTSWS[1].setText(QStringLiteral("Suburb"));
    for (int i = 0; i < 2; ++i) {
        cmdWBTSWSAdd[i].setText(QStringLiteral("Add"));
        cmdWBTSWSRemove[i].setText(QStringLiteral("Delete"));
    }
    Label13.setText(QStringLiteral("To add a server's Url type it below then click add above!"));
    Label14.setText(QStringLiteral("Each server must have at least one suburb. Type it below."));
    connect(&cboWBTSWS, &Control::clicked, this, &SwsEditor::ServerListClick);
    connect(&cmdWBTSWSAdd[0], &Control::clicked, this, &SwsEditor::AddServerClick);
    connect(&cmdWBTSWSAdd[1], &Control::clicked, this, &SwsEditor::AddSuburbClick);
    connect(&cmdWBTSWSRemove[0], &Control::clicked, this, &SwsEditor::RemoveServerClick);
    connect(&cmdWBTSWSRemove[1], &Control::clicked, this, &SwsEditor::RemoveSuburbClick);
    connect(&txtSWSServer, &Control::changed, this, &SwsEditor::ShowSwsUrl);
    connect(&txtSWSSub, &Control::changed, this, &SwsEditor::ShowSwsUrl);
}

bool SwsEditor::keyAccepted(bool server, int code)
{
    static const QString serverKeys = QStringLiteral("\t_* $',~`!@#%^&()+=-;[]{}|<>\\");
    static const QString suburbKeys = QStringLiteral("\t*_$ ',`!@#%^&()+=-./;:[]{}|<>\\");
    return !(server ? serverKeys : suburbKeys).contains(QChar(code));
}

void SwsEditor::ShowSwsUrl()
{
    lblUrl.setText(txtSWSServer.text() + txtSWSSub.text());
}

void SwsEditor::LoadSwsLists()
{
    SwsTable& sws = m_ctx.state.gstrSWS;
    ReadServersWithSuburbs(m_ctx.gdbMain, sws);
    cboWBTSWS.clear();
    cboWBTSWSSubs.clear();
    for (int row = 1; row <= SwsTable::MaxServers && !sws.at(row, 0).isEmpty(); ++row)
        cboWBTSWS.addItem(sws.at(row, 0));
    if (cboWBTSWS.listCount() > 0)
        cboWBTSWS.userSelect(0);
}

void SwsEditor::ServerListClick()
{
    cboWBTSWSSubs.clear();
    const int row = cboWBTSWS.listIndex() + 1;
    if (row < 1)
        return;
    const SwsTable& sws = m_ctx.state.gstrSWS;
    for (int col = 1; col <= SwsTable::MaxSuburbs && !sws.at(row, col).isEmpty(); ++col)
        cboWBTSWSSubs.addItem(sws.at(row, col));
    if (cboWBTSWSSubs.listCount() > 0)
        cboWBTSWSSubs.setListIndex(0);
}

void SwsEditor::ServerLostFocus()
{
    const QString text = txtSWSServer.text();
    if (!text.isEmpty() && !text.endsWith(QLatin1Char('/')))
        txtSWSServer.setText(text + QLatin1Char('/'));
}

bool SwsEditor::noBlank(const QString& text, const char* what)
{
    if (!text.contains(QLatin1Char(' ')))
        return true;
    m_ctx.MsgBox(QStringLiteral("This is not a valid ") + QLatin1String(what) + QLatin1Char('!'),
                 PromptService::OkOnly, QString::fromLatin1(SpacesTitle));
    return false;
}

void SwsEditor::AddServerClick()
{
    QString server = txtSWSServer.text();
    if (server.isEmpty()) {
        m_ctx.MsgBox(QStringLiteral("No Server Url in the Server Url Text Box!"));
        return;
    }
    if (!noBlank(server, "Url"))
        return;
    if (server.left(7).toLower() != QLatin1String("http://")) {
        m_ctx.MsgBox(QStringLiteral("This is not a valid Url! \nhttp:// Missing"),
                     PromptService::Critical);
        return;
    }
    if (!server.endsWith(QLatin1Char('/')))
        server += QLatin1Char('/');
    const QString suburb = txtSWSSub.text();
    if (!noBlank(suburb, "Suburb name"))
        return;
    if (suburb.isEmpty()) {
        m_ctx.MsgBox(QString::fromLatin1(NoSuburb));
        return;
    }
    if (!FitsField(m_ctx.prompts, server) || !FitsField(m_ctx.prompts, suburb))
        return;
    SwsTable& sws = m_ctx.state.gstrSWS;
    int row = 1;
    while (row <= SwsTable::MaxServers && !sws.at(row, 0).isEmpty())
        ++row;
    if (row > SwsTable::MaxServers) {
        m_ctx.MsgBox(QStringLiteral("Maximum number of server Urls (10) already exist!"));
        return;
    }
    sws.at(row, 0) = server;
    sws.at(row, 1) = suburb;
    cboWBTSWS.addItem(server);
    added();
}

void SwsEditor::added()
{
    blnSwsChanged = true;
    txtSWSServer.setText(QString(""));
    txtSWSSub.setText(QString(""));
    lblUrl.setText(QString(""));
    ServerListClick();
}

void SwsEditor::AddSuburbClick()
{
    const int row = cboWBTSWS.listIndex() + 1;
    if (row < 1)
        return;
    if (txtSWSSub.text().isEmpty()) {
        m_ctx.MsgBox(QString::fromLatin1(NoSuburb));
        return;
    }
    if (!txtSWSServer.text().isEmpty()) {
        const int answer =
            m_ctx.MsgBox(QStringLiteral("Add new Server, SELECT YES. \n or \n"
                                        "Add new suburb to selected server, "
                                        "SELECT NO?"),
                         PromptService::YesNoCancel, QStringLiteral("Which do you want?"));
        if (answer == PromptService::Yes) {
            AddServerClick();
            return;
        }
        if (answer != PromptService::No)
            return;
    }
    if (!FitsField(m_ctx.prompts, txtSWSSub.text()))
        return;
    SwsTable& sws = m_ctx.state.gstrSWS;
    int col = 1;
    while (col <= SwsTable::MaxSuburbs && !sws.at(row, col).isEmpty())
        ++col;
    if (col > SwsTable::MaxSuburbs) {
        m_ctx.MsgBox(QStringLiteral("Maximum number of suburbs (55) already exist!"));
        return;
    }
    sws.at(row, col) = txtSWSSub.text();
    added();
}

void SwsEditor::RemoveServerClick()
{
    const int row = cboWBTSWS.listIndex() + 1;
    if (cboWBTSWS.listCount() < 2) {
        m_ctx.MsgBox(QStringLiteral("You can not delete the last server!"));
        return;
    }
    if (row < 1)
        return;
    if (m_ctx.MsgBox(QStringLiteral("Delete ") + cboWBTSWS.text() +
                         QStringLiteral(" and all of it's suburbs?"),
                     PromptService::YesNo, QStringLiteral("Ok to delete?")) != PromptService::Yes)
        return;
    SwsTable& sws = m_ctx.state.gstrSWS;
    for (int col = 0; col <= SwsTable::MaxSuburbs && !sws.at(row, col).isEmpty(); ++col)
        sws.at(row, col).clear();
    compact();
    cboWBTSWS.removeItem(row - 1);
    cboWBTSWS.setListIndex(0);
    blnSwsChanged = true;
    ServerListClick();
}

void SwsEditor::RemoveSuburbClick()
{
    const int row = cboWBTSWS.listIndex() + 1;
    if (row == 1) {
        m_ctx.MsgBox(QStringLiteral("Can not delete the suburbs of the primary server!"));
        return;
    }
    if (cboWBTSWSSubs.listIndex() < 0) {
        m_ctx.MsgBox(QStringLiteral("No Suburb selected!"));
        return;
    }
    if (cboWBTSWSSubs.listCount() < 2) {
        m_ctx.MsgBox(QStringLiteral("Must delete the server to delete the last Suburb!"));
        blnSwsChanged = true;
        ServerListClick();
        return;
    }
    m_ctx.state.gstrSWS.at(row, cboWBTSWSSubs.listIndex() + 1).clear();
    compact();
    blnSwsChanged = true;
    ServerListClick();
}

void SwsEditor::compact()
{
    SwsTable& sws = m_ctx.state.gstrSWS;
    SwsTable packed;
    int to = 1;
    for (int row = 1; row <= SwsTable::MaxServers; ++row) {
        if (sws.at(row, 0).isEmpty())
            continue;
        packed.at(to, 0) = sws.at(row, 0);
        int col = 1;
        for (int from = 1; from <= SwsTable::MaxSuburbs; ++from)
            if (!sws.at(row, from).isEmpty())
                packed.at(to, col++) = sws.at(row, from);
        ++to;
    }
    sws = packed;
}

void SwsEditor::SaveSwsData()
{
    const SwsTable& sws = m_ctx.state.gstrSWS;
    QVector<QStringList> servers;
    QVector<QStringList> subs;
    for (int row = 1; row <= SwsTable::MaxServers; ++row) {
        if (sws.at(row, 0).isEmpty())
            continue;
        servers.append({sws.at(row, 0)});
        for (int col = 1; col <= SwsTable::MaxSuburbs; ++col)
            if (!sws.at(row, col).isEmpty())
                subs.append({QString::number(row), sws.at(row, col)});
    }
    TextDatabase& db = m_ctx.gdbMain;
    try {
        db.runInTransaction([&] {
            db.removeAll(Sws::ServersTable);
            db.removeAll(Sws::SubsTable);
            db.append(Sws::ServersTable, {Sws::UrlField}, servers);
            db.append(Sws::SubsTable, {Sws::IndexField, Sws::SubField}, subs);
        });
    } catch (const std::exception&) {
        m_ctx.MsgBox(QStringLiteral("Adding SWS Data Error occurred!"), PromptService::OkOnly,
                     QStringLiteral("ERROR!"));
    }
}

void SwsEditor::ResetDefaults()
{
    try {
        m_ctx.gdbMain.runInTransaction([this] {
            for (const char* table : {Sws::ServersTable, Sws::SubsTable})
                if (m_ctx.gdbMain.hasTable(table))
                    m_ctx.gdbMain.dropTable(table);
        });
    } catch (const std::exception&) {
    }
    cboWBTSWSSubs.clear();
    cboWBTSWS.clear();
    LoadSwsLists();
}
