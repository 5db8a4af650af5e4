#include "RandNavEditor.h"

#include "OptionsHost.h"
#include "addressdata/TextDatabase.h"
#include "core/AppContext.h"
#include "core/SettingsKeys.h"

namespace {
const char* const SelectFirst = "You must first select an item!";
} // namespace

RandNavEditor::RandNavEditor(AppContext& ctx, OptionsHost& host,
                             std::function<void(bool)> enableControls)
    : m_ctx(ctx), m_host(host), m_enable(std::move(enableControls))
{
    Label1.setText(QStringLiteral("RandNav Neighbohoods"));
    Label2.setText(QStringLiteral("Neighborhood List"));
    Label3.setText(QStringLiteral("Add"));
    Label4.setText(QStringLiteral("Remove"));
    // The picture buttons carry their labels' words.
    cmdRandNavAdd[0].setText(Label3.text());
    cmdRandNavAdd[1].setText(Label4.text());
    chkUseSelected.setText(QStringLiteral("Use Selected Neighborhoods"));
    connect(&cmdRandNavAdd[0], &Control::clicked, this, &RandNavEditor::AddClick);
    connect(&cmdRandNavAdd[1], &Control::clicked, this, &RandNavEditor::RemoveClick);
}

int RandNavEditor::table() const
{
    return m_ctx.state.gblnJapan ? Tbl::JapanMisc : Tbl::UsaMisc;
}

void RandNavEditor::Load()
{
    const auto& names = m_ctx.state.gastrTables;
    const int hoods = m_ctx.state.gblnJapan ? Tbl::JapanNeighborhoods : Tbl::UsaNeighborhoods;
    lstRNS[0].clear();
    lstRNS[1].clear();
    try {
        for (const TextRecord& row : m_ctx.gdbMain.readAll(names[table()][0], {names[table()][1]}))
            lstRNS[0].addItem(NullToEmpty(row.fields.value(0)));
        for (const TextRecord& row : m_ctx.gdbMain.readAll(names[hoods][0], {names[hoods][1]}))
            lstRNS[1].addItem(NullToEmpty(row.fields.value(0)));
    } catch (const std::exception&) {
    }
    const char* key = m_ctx.state.gblnJapan ? Key::JapanRNS : Key::UsaRNS;
    chkUseSelected.setChecked(m_ctx.GetSetting(Sect::AdvOpt, key, "0") == QLatin1String("1"));
}

void RandNavEditor::AddClick()
{
    if (lstRNS[1].listIndex() < 0) {
        m_ctx.MsgBox(QString::fromLatin1(SelectFirst));
        return;
    }
    const QString name = lstRNS[1].text();
    if (lstRNS[0].items().contains(name))
        return;
    lstRNS[0].addItem(name);
    blnRandNavChanged = true;
}

void RandNavEditor::RemoveClick()
{
    if (lstRNS[0].listIndex() < 0) {
        m_ctx.MsgBox(QString::fromLatin1(SelectFirst));
        return;
    }
    lstRNS[0].removeItem(lstRNS[0].listIndex());
    blnRandNavChanged = true;
}

void RandNavEditor::Save()
{
    if (blnRandNavChanged) {
        m_enable(false);
        try {
            rewrite();
        } catch (const std::exception&) {
            // The table keeps its rows: the rewrite is one transaction.
        }
        m_enable(true);
    }
    const bool use = chkUseSelected.isChecked();
    (m_ctx.state.gblnJapan ? m_ctx.state.gblnJapanRNS : m_ctx.state.gblnUsaRNS) = use;
    m_ctx.SaveSetting(Sect::AdvOpt, m_ctx.state.gblnJapan ? Key::JapanRNS : Key::UsaRNS,
                      use ? QStringLiteral("1") : QStringLiteral("0"));
}

void RandNavEditor::rewrite()
{
    const QString name = m_ctx.state.gastrTables[table()][0];
    const QString field = m_ctx.state.gastrTables[table()][1];
    QVector<QStringList> rows;
    for (const QString& item : lstRNS[0].items())
        rows.append({item});
    m_ctx.gdbMain.runInTransaction([&] {
        m_ctx.gdbMain.removeAll(name);
        m_ctx.gdbMain.append(name, {field}, rows);
    });
    m_host.pumpEvents();
}
