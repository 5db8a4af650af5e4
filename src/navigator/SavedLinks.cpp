#include "SavedLinks.h"

#include "AddressComposer.h"
#include "ComposerHooks.h"
#include "NavigatorControls.h"
#include "NavigatorHost.h"
#include "NavigatorWindows.h"
#include "addressdata/TextDatabase.h"
#include "core/AppContext.h"

#include <QLocale>
#include <exception>

namespace {
const QString SavedOnPrefix = QStringLiteral("Saved on: Date = ");
} // namespace

SavedLinks::SavedLinks(AppContext& ctx, NavigatorControls& controls, AddressComposer& composer,
                       ComposerHooks& hooks, NavigatorHost& host, NavigatorWindows& windows)
    : m_ctx(ctx), m_c(controls), m_composer(composer), m_hooks(hooks), m_host(host),
      m_windows(windows)
{
    panelCaption.setText(QStringLiteral("0 Saved Links"));
    connectEvents();
}

void SavedLinks::connectEvents()
{
    // These run inside widget signals: a failure must not leave them.
    auto guarded = [](void (SavedLinks::*event)(), SavedLinks* self) {
        return [event, self] {
            try {
                (self->*event)();
            } catch (const std::exception&) {
            }
        };
    };
    connect(&m_c.cmbSavedLinks, &Control::clicked, this, guarded(&SavedLinks::Click, this));
    connect(&m_c.cmbSavedLinks, &Control::changed, this, guarded(&SavedLinks::Change, this));
    connect(&m_c.cmdSavedLinks0, &Control::clicked, this, guarded(&SavedLinks::SaveClick, this));
    connect(&m_c.cmdSavedLinks1, &Control::clicked, this, guarded(&SavedLinks::DeleteClick, this));
}

int SavedLinks::regionTable() const
{
    return m_ctx.state.gblnJapan ? Tbl::JapanSaved : Tbl::UsaSaved;
}

QString SavedLinks::tableName(int table) const
{
    return m_ctx.state.gastrTables[table][0];
}

QStringList SavedLinks::fieldNames(int table) const
{
    return FieldNames(m_ctx.state.gastrTables, table);
}

void SavedLinks::LoadSavedLinks(int table)
{
    SharedState& st = m_ctx.state;
    m_c.cmbSavedLinks.clear();
    lstLinks.clear();
    try {
        const QVector<TextRecord> records =
            m_ctx.gdbMain.readAll(tableName(table), fieldNames(table));
        if (!records.isEmpty()) {
            st.gintSavedLinkTop = records.size() - 1;
            st.gastrSavedLinks.resize(records.size());
            for (int row = 0; row < records.size(); ++row) {
                const QStringList& f = records[row].fields;
                SavedLink& link = st.gastrSavedLinks[row];
                link.neighborhood = NullToEmpty(f.value(0));
                link.suburb = NullToEmpty(f.value(1));
                link.house = NullToEmpty(f.value(2));
                link.comment = NullToEmpty(f.value(3));
                link.date = NullToEmpty(f.value(4));
                lstLinks.addItem(link.comment);
                m_c.cmbSavedLinks.addItem(link.comment);
            }
        }
    } catch (const std::exception&) {
        // A table that cannot be read shows no links; the arrays keep theirs.
    }
    // The count shown is the top row, one less than the links.
    panelCaption.setText(QString::number(st.gintSavedLinkTop) + QStringLiteral(" Saved Links"));
}

void SavedLinks::LeaveSavedView()
{
    SavedViewActive = false;
    m_c.cmbSavedLinks.setText(QString(""));
    m_c.cmdSavedLinks0.setText(QStringLiteral("Save"));
    m_c.cmdSavedLinks1.setVisible(false);
}

void SavedLinks::Click()
{
    if (m_c.cmbSavedLinks.text().isEmpty())
        return;
    m_hooks.StopAutoModes();
    const int row = m_c.cmbSavedLinks.listIndex();
    if (row < 0 || row >= m_ctx.state.gastrSavedLinks.size())
        return;
    // A second choice keeps the first address: Return goes back to it.
    if (!SavedViewActive) {
        SavedViewState = {m_c.cmbNeighborhood.text(), m_c.cmbSuburb.text(),
                          m_c.cmbHouseNumberPrefix.text(), m_c.cmbHouseNumberSuffix.text(),
                          m_c.lblComment.text()};
    }
    const SavedLink link = m_ctx.state.gastrSavedLinks[row];
    m_composer.HouseNumber = link.house;
    m_c.cmbNeighborhood.setText(link.neighborhood);
    m_c.cmbSuburb.setText(link.suburb);
    m_composer.ComposeAddress();
    if (!link.date.isEmpty())
        m_c.lblComment.setText(link.date);
    SavedViewActive = true;
    m_c.cmdSavedLinks1.setVisible(true);
    m_c.cmdSavedLinks0.setText(QStringLiteral("Return"));
    if (m_ctx.state.gblnOSLOC)
        m_c.cmdOpenSite.click();
}

// The list takes no typing: this runs when code sets its text.
void SavedLinks::Change()
{
    const QString text = m_c.cmbSavedLinks.text();
    if (text.isEmpty())
        return;
    for (const SavedLink& link : m_ctx.state.gastrSavedLinks) {
        if (link.comment.contains(text))
            return;
    }
    LeaveSavedView();
}

void SavedLinks::restoreView()
{
    m_composer.HouseNumber = SavedViewState.prefix + SavedViewState.suffix;
    m_c.cmbNeighborhood.setText(SavedViewState.neighborhood);
    m_c.cmbSuburb.setText(SavedViewState.suburb);
    // The lists fire no change when the link shared the Neighborhood and
    // Suburb, so the house number is composed here.
    m_composer.ComposeAddress();
    m_c.lblComment.setText(SavedViewState.comment);
}

void SavedLinks::Return()
{
    restoreView();
    LeaveSavedView();
}

// With one link saved gintSavedLinkTop is 0 and the test is skipped, so
// that link can be saved a second time.
bool SavedLinks::showDuplicate()
{
    const SharedState& st = m_ctx.state;
    if (st.gintSavedLinkTop <= 0)
        return false;
    for (const SavedLink& link : st.gastrSavedLinks) {
        if (link.neighborhood == m_c.cmbNeighborhood.text() &&
            link.suburb == m_c.cmbSuburb.text() && link.house == m_composer.HouseNumber) {
            ShowLines(m_ctx.prompts,
                      {QStringLiteral("This Site is already Saved!!!\r"), QStringLiteral("Date:"),
                       link.date, QStringLiteral("Comment:"), link.comment},
                      QStringLiteral("Already Saved!"), false);
            return true;
        }
    }
    return false;
}

void SavedLinks::SaveClick()
{
    SharedState& st = m_ctx.state;
    if (SavedViewActive) {
        Return();
        return;
    }
    if (st.gblnNoteOpen || showDuplicate())
        return;
    // A window that stays on top would hide the note.
    if (st.gblnMainOnTop)
        m_c.mnuOnTop.click();
    if (st.gblnWBOneOnTop)
        m_windows.toggleBrowserOneOnTop();
    m_host.showNoteDialog();
}

void SavedLinks::DeleteClick()
{
    const QString note = m_c.cmbSavedLinks.text();
    if (note.isEmpty())
        return;
    const SharedState& st = m_ctx.state;
    const int table = regionTable();
    const int row = m_c.cmbSavedLinks.listIndex();
    const QString house =
        row >= 0 && row < st.gastrSavedLinks.size() ? st.gastrSavedLinks[row].house : QString();
    try {
        // The first record of the address on show with this note; one that
        // is gone already deletes nothing.
        const QVector<TextRecord> records =
            m_ctx.gdbMain.readAll(tableName(table), fieldNames(table));
        for (const TextRecord& record : records) {
            const QStringList& f = record.fields;
            if (NullToEmpty(f.value(0)) == m_c.cmbNeighborhood.text() &&
                NullToEmpty(f.value(1)) == m_c.cmbSuburb.text() &&
                NullToEmpty(f.value(2)) == house && NullToEmpty(f.value(3)) == note) {
                m_ctx.gdbMain.remove(tableName(table), record.rowid);
                break;
            }
        }
    } catch (const std::exception&) {
    }
    LoadSavedLinks(table);
    restoreView();
    LeaveSavedView();
}

QString SavedLinks::StorableNote(const QString& note)
{
    QString line = note;
    line.replace(QLatin1Char('\r'), QLatin1Char(' '));
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    if (line.size() > TextDatabase::MaxFieldLength) {
        int length = TextDatabase::MaxFieldLength;
        // Never keep half of a character that takes two code units.
        if (line.at(length - 1).isHighSurrogate())
            --length;
        line.truncate(length);
    }
    return line;
}

QString SavedLinks::TimeText(const QString& time)
{
    QString hours = time.left(5);
    if (hours.endsWith(QLatin1Char(':')))
        hours = time.left(4);
    return hours + time.right(2);
}

QString SavedLinks::SavedOnText(const QDateTime& when)
{
    const QString date = QLocale::system().toString(when.date(), QLocale::ShortFormat);
    const QString time = QLocale::c().toString(when.time(), QStringLiteral("h:mm:ss AP"));
    return SavedOnPrefix + date + QStringLiteral(" Time = ") + TimeText(time);
}

void SavedLinks::SaveNote(const QString& note)
{
    if (note.trimmed().isEmpty())
        return;
    const int table = regionTable();
    const QStringList record = {m_c.cmbNeighborhood.text(), m_c.cmbSuburb.text(),
                                m_c.cmbHouseNumberPrefix.text() + m_c.cmbHouseNumberSuffix.text(),
                                StorableNote(note), SavedOnText(clock())};
    try {
        if (m_ctx.gdbMain.recordCount(tableName(table)) == MaxRecords) {
            m_ctx.MsgBox(QString::fromLatin1(LimitMessage));
            return;
        }
        m_ctx.gdbMain.append(tableName(table), fieldNames(table), {record});
    } catch (const std::exception&) {
        // The record is stored whole or not at all: the table is as it was,
        // and so are the lists.
        return;
    }
    LoadSavedLinks(table);
}
