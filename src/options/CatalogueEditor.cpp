#include "CatalogueEditor.h"

#include "OptionsHost.h"
#include "addressdata/TextDatabase.h"
#include "core/AppContext.h"
#include "core/Endpoints.h"
#include "core/VbRuntime.h"

namespace {
const char* const SelectNeighborhood = "Select a Neighborhood!";
const char* const SelectSuburb = "Select a Suburb!";
} // namespace

CatalogueEditor::CatalogueEditor(AppContext& ctx, OptionsHost& host,
                                 std::function<void(bool)> enableControls)
    : m_ctx(ctx), m_host(host), m_enable(std::move(enableControls))
{
    fraOptions.setText(QStringLiteral("Add / Remove Neighborhoods and Suburbs"));
    Label2.setText(QStringLiteral("1. Select the server who's neighborhoods you will change:"));
    Label1.setText(QStringLiteral("Server"));
    Label3.setText(QStringLiteral("2. To add Suburbs select a Neighborhood:"));
    Label4.setText(QStringLiteral("Neighborhood "));
    Label5.setText(QStringLiteral("Suburb"));
    Label9.setText(QStringLiteral("(Can Not Be Canceled)"));
    for (Control* c : {&cmdAdd[0], &cmdAdd[1]})
        c->setText(QStringLiteral("Add"));
    for (Control* c : {&cmdRemove[0], &cmdRemove[1]})
        c->setText(QStringLiteral("Delete"));
    cmdAdd[0].setToolTip(QStringLiteral("Add additional Neighborhoods to GeoCities"));
    cmbServer.addItem(QString::fromLatin1(Endpoint::UsaSiteLabel));
    cmbServer.addItem(QString::fromLatin1(Endpoint::JapanSiteLabel));
    resetTips();
    connect(&cmbServer, &Control::clicked, this, &CatalogueEditor::ServerClick);
    connect(&cmbN, &Control::clicked, this, &CatalogueEditor::NClick);
    connect(&cmbS, &Control::clicked, this, &CatalogueEditor::SClick);
    connect(&cmdAdd[0], &Control::clicked, this, [this] { AddClick(0); });
    connect(&cmdAdd[1], &Control::clicked, this, [this] { AddClick(1); });
    connect(&cmdRemove[0], &Control::clicked, this, &CatalogueEditor::RemoveNeighborhoodClick);
    connect(&cmdRemove[1], &Control::clicked, this, &CatalogueEditor::RemoveSuburbClick);
}

QString CatalogueEditor::tableName(int row) const
{
    return m_ctx.state.gastrTables[row][0];
}

QString CatalogueEditor::field(int row, int column) const
{
    return m_ctx.state.gastrTables[row][column];
}

bool CatalogueEditor::basic(int listIndex) const
{
    return listIndex < (japanSite() ? JapanBasic : UsaBasic);
}

void CatalogueEditor::resetTips()
{
    const QString tip = QString::fromLatin1(SelectNeighborhood);
    for (Control* c : {static_cast<Control*>(&cmbN), static_cast<Control*>(&cmbS), &cmdAdd[1],
                       &cmdRemove[0], &cmdRemove[1]})
        c->setToolTip(tip);
}

void CatalogueEditor::selectServer(bool japan)
{
    cmbServer.userSelect(japan ? 1 : 0);
}

void CatalogueEditor::ServerClick()
{
    resetTips();
    const bool japan = japanSite();
    intNeighborhoodTable = japan ? Tbl::JapanNeighborhoods : Tbl::UsaNeighborhoods;
    intSuburbTable = japan ? Tbl::JapanSuburbs : Tbl::UsaSuburbs;
    cmdAdd[0].setToolTip(QStringLiteral("Add a Neighborhood to ") + cmbServer.text());
    cmbN.clear();
    cmbS.clear();
    try {
        const auto rows = m_ctx.gdbMain.readAll(tableName(intNeighborhoodTable),
                                                {field(intNeighborhoodTable, 1)});
        for (const TextRecord& row : rows)
            cmbN.addItem(NullToEmpty(row.fields.value(0)));
    } catch (const std::exception&) {
        // A table that cannot be read leaves the list empty.
    }
}

void CatalogueEditor::NClick()
{
    cmbS.setToolTip(QString::fromLatin1(SelectSuburb));
    cmdAdd[1].setToolTip(QStringLiteral("Add a Suburb to Neighborhood ") + cmbN.text());
    cmdRemove[0].setToolTip(QStringLiteral("Delete Neighborhood ") + cmbN.text() +
                            QStringLiteral(" and all of it's Suburbs!"));
    cmbS.clear();
    try {
        const auto rows = m_ctx.gdbMain.readAll(
            tableName(intSuburbTable), {field(intSuburbTable, 1), field(intSuburbTable, 2)});
        for (const TextRecord& row : rows)
            if (Vb::Val(NullToEmpty(row.fields.value(0))) == cmbN.listIndex() + 1)
                cmbS.addItem(NullToEmpty(row.fields.value(1)));
    } catch (const std::exception&) {
    }
    SClick();
}

void CatalogueEditor::SClick()
{
    const bool chosen = cmbS.listIndex() >= 0;
    cmdRemove[1].setToolTip(chosen ? QStringLiteral("Delete Suburb ") + cmbS.text() +
                                         QStringLiteral(" from Neighborhood ") + cmbN.text()
                                   : QString::fromLatin1(SelectSuburb));
    cmdRemove[1].setEnabled(chosen);
}

void CatalogueEditor::AddClick(int index)
{
    if (index == 0 && cmbServer.text().isEmpty()) {
        m_ctx.MsgBox(QStringLiteral("You must select a Server First!"));
        return;
    }
    if (index == 1 && cmbN.listIndex() < 0) {
        m_ctx.MsgBox(QStringLiteral("You must select a Neighborhood First!"));
        return;
    }
    // frmAdd's Quit after an addition refreshes the memory copy and the
    // lists here; its Cancel leaves both as they were.
    if (m_host.AddAreas(intNeighborhoodTable, intSuburbTable, index, cmbN.listIndex() + 1)) {
        m_host.reloadCatalogue();
        ServerClick();
    }
}

void CatalogueEditor::RemoveSuburbClick()
{
    if (cmbS.listIndex() < 0) {
        m_enable(false);
        m_ctx.MsgBox(QStringLiteral("No Suburb Selected!"));
        m_enable(true);
        return;
    }
    if (basic(cmbN.listIndex()) &&
        !ShowLines(m_ctx.prompts,
                   {QStringLiteral("Are you certain you want to delete!\r"),
                    QStringLiteral("this basic Neighborhood's Suburb?"), QString(""),
                    QStringLiteral("Changes Can Not be undone, unless"),
                    QStringLiteral("you manually replace these Suburbs.")},
                   QStringLiteral("Basic Neighborhood's Suburb!"), true))
        return;
    runDeletion(
        QStringLiteral("Suburb"), [this](QStringList& deleted) { deleteSuburb(deleted); },
        &CatalogueEditor::NClick);
}

// A deletion runs as one transaction with the controls off; then the lists
// are read again and the deleted names shown. A failure changes nothing.
void CatalogueEditor::runDeletion(const QString& what,
                                  const std::function<void(QStringList&)>& work,
                                  void (CatalogueEditor::*refresh)())
{
    m_enable(false);
    QStringList deleted;
    try {
        m_ctx.gdbMain.runInTransaction([&] { work(deleted); });
    } catch (const std::exception& e) {
        deleted.clear();
        m_ctx.MsgBox(QStringLiteral("The %1 could not be deleted: ").arg(what) +
                     QString::fromUtf8(e.what()));
    }
    if (!deleted.isEmpty())
        blnCatalogueChanged = true;
    (this->*refresh)();
    m_enable(true);
    if (!deleted.isEmpty())
        showDeleted(deleted);
}

void CatalogueEditor::deleteSuburb(QStringList& deleted)
{
    const auto hoods =
        m_ctx.gdbMain.readAll(tableName(intNeighborhoodTable), {field(intNeighborhoodTable, 1)});
    int position = 0;
    for (int i = 0; i < hoods.size() && position == 0; ++i)
        if (NullToEmpty(hoods[i].fields.value(0)) == cmbN.text())
            position = i + 1;
    const auto subs = m_ctx.gdbMain.readAll(tableName(intSuburbTable),
                                            {field(intSuburbTable, 1), field(intSuburbTable, 2)});
    for (const TextRecord& row : subs) {
        if (Vb::Val(NullToEmpty(row.fields.value(0))) == position &&
            NullToEmpty(row.fields.value(1)) == cmbS.text()) {
            deleted.append(cmbS.text());
            m_ctx.gdbMain.remove(tableName(intSuburbTable), row.rowid);
            return;
        }
    }
}

void CatalogueEditor::RemoveNeighborhoodClick()
{
    const int index = cmbN.listIndex();
    if (index < 0) {
        m_ctx.MsgBox(QStringLiteral("No Neighborhood Selected!"));
        return;
    }
    if (basic(index)) {
        m_ctx.MsgBox(QStringLiteral("Can not delete basic Neighborhoods!"));
        return;
    }
    runDeletion(
        QStringLiteral("Neighborhood"),
        [this, index](QStringList& deleted) { deleteNeighborhood(index + 1, deleted); },
        &CatalogueEditor::ServerClick);
}

// The row, its Suburbs, and the renumbering of the later Suburbs, in the
// one transaction that leaves every Suburb under its Neighborhood.
void CatalogueEditor::deleteNeighborhood(int position, QStringList& deleted)
{
    TextDatabase& db = m_ctx.gdbMain;
    const auto hoods =
        db.readAll(tableName(intNeighborhoodTable), {field(intNeighborhoodTable, 1)});
    if (position > hoods.size())
        return;
    deleted.append(NullToEmpty(hoods[position - 1].fields.value(0)));
    db.remove(tableName(intNeighborhoodTable), hoods[position - 1].rowid);
    const QString subs = tableName(intSuburbTable);
    const QString indexField = field(intSuburbTable, 1);
    const auto rows = db.readAll(subs, {indexField, field(intSuburbTable, 2)});
    for (const TextRecord& row : rows) {
        m_host.pumpEvents();
        const double parent = Vb::Val(NullToEmpty(row.fields.value(0)));
        if (parent == position) {
            deleted.append(NullToEmpty(row.fields.value(1)));
            db.remove(subs, row.rowid);
        } else if (parent > position) {
            db.update(subs, row.rowid, indexField, QString::number(static_cast<int>(parent) - 1));
        }
    }
}

void CatalogueEditor::showDeleted(const QStringList& deleted)
{
    ShowLines(m_ctx.prompts, deleted, QStringLiteral("Records Deleted:"), false);
}
