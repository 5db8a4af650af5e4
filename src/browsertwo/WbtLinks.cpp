#include "WbtLinks.h"

#include "BrowserTwo.h"
#include "BrowserTwoHost.h"
#include "WbtLinksHost.h"
#include "addressdata/TextDatabase.h"
#include "browserone/BrowserControl.h"
#include "core/AppContext.h"
#include "core/SettingsKeys.h"

#include <QCoreApplication>
#include <exception>

WbtLinks::WbtLinks(AppContext& ctx, BrowserTwo& walker, BrowserTwoHost& walkerHost,
                   WbtLinksHost& host)
    : m_ctx(ctx), m_walker(walker), m_walkerHost(walkerHost), m_host(host)
{
    connect(&lstWBTLinks, &Control::clicked, this, &WbtLinks::ListClick);
    connect(&walker, &BrowserTwo::savedLinkTool, this, [this](int index) {
        if (index == BrowserTwo::Save)
            SaveClick();
        else if (index == BrowserTwo::View)
            ViewClick();
        else if (index == BrowserTwo::Del)
            DelClick();
    });
}

QString WbtLinks::table() const
{
    return m_ctx.state.gastrTables[Tbl::WbtLinks][0];
}

QStringList WbtLinks::fields() const
{
    return FieldNames(m_ctx.state.gastrTables, Tbl::WbtLinks);
}

void WbtLinks::SaveClick()
{
    if (gblnWBTNoteOpen)
        return;
    const QString address = m_walker.txtAddressBar.text();
    try {
        if (alreadySaved(address))
            return;
    } catch (const std::exception&) {
        return;
    }
    GetLinkValue(address);
    m_walker.browser().Stop();
    // Auto mode must not leave the page while the note is written.
    m_walker.tmrAuto.stop();
    m_walkerHost.clearTopmost();
    NoteLoad();
    m_host.showNote();
}

// The address is compared as it stands in the address bar, while the links
// are stored in lower case: an address typed in capitals is not found.
bool WbtLinks::alreadySaved(const QString& address)
{
    for (const TextRecord& row : m_ctx.gdbMain.readAll(table(), fields())) {
        QCoreApplication::processEvents();
        if (NullToEmpty(row.fields.value(0)) == address) {
            ShowLines(m_ctx.prompts,
                      {QStringLiteral("This Site is already Saved!!!\r"),
                       QStringLiteral("Comment:"), NullToEmpty(row.fields.value(1))},
                      QStringLiteral("Already Saved!"), false);
            return true;
        }
    }
    return false;
}

void WbtLinks::GetLinkValue(const QString& address)
{
    NoteLink = address.left(LinkLength).toLower().trimmed();
}

void WbtLinks::NoteLoad()
{
    const SharedState& st = m_ctx.state;
    QString title;
    if (st.gblnWBTwoLoaded && m_ctx.ConnectionUp())
        title = m_walker.browser().LocationName();
    if (!title.isEmpty())
        txtNote.setText(st.gblnUseSiteTitles ? title.left(LinkLength) : st.gstrDefaultNote);
    else
        txtNote.setText(st.gstrDefaultNote);
    gblnWBTNoteOpen = true;
}

void WbtLinks::NoteOkClick()
{
    const QString text = txtNote.text();
    if (!text.trimmed().isEmpty()) {
        QString comment = text;
        comment.replace(QLatin1Char('\r'), QLatin1Char(' ')).replace(QLatin1Char('\n'), ' ');
        try {
            if (m_ctx.gdbMain.recordCount(table()) == LinkLimit)
                m_ctx.MsgBox(QStringLiteral("Maximum number of Links (1,000) already saved!"));
            else
                m_ctx.gdbMain.append(table(), fields(), {{NoteLink, comment.trimmed()}});
            if (gblnWBTLinksOpen)
                readLinks();
        } catch (const std::exception&) {
        }
    }
    m_host.closeNote();
}

void WbtLinks::NoteUnload()
{
    gblnWBTNoteOpen = false;
}

void WbtLinks::ViewClick()
{
    gstrWbtLinks.clear();
    if (gblnWBTLinksOpen) {
        LinksQueryUnload();
        m_host.closePanel();
        return;
    }
    try {
        openLinks();
    } catch (const std::exception&) {
    }
}

void WbtLinks::openLinks()
{
    const QRect screen = m_host.screenTwips();
    const QRect panel = m_host.panelTwips();
    const QString top = m_ctx.GetSetting(Sect::Startup, Key::WBT_LinksT,
                                         QString::number((screen.height() - panel.height()) / 2));
    const QString left = m_ctx.GetSetting(Sect::Startup, Key::WBT_LinksL,
                                          QString::number((screen.width() - panel.width()) / 2));
    const QString height = m_ctx.GetSetting(Sect::Startup, Key::WBT_LinksH, "3300");
    const QString width = m_ctx.GetSetting(Sect::Startup, Key::WBT_LinksW, "5000");
    if (m_ctx.gdbMain.recordCount(table()) == 0) {
        m_ctx.MsgBox(QStringLiteral("No saved links!"));
        return;
    }
    const int read = readLinks();
    gblnWBTLinksOpen = true;
    // One below the number of rows, in the manner of an upper bound.
    linksCaption.setText(QString::number(read - 1) + QStringLiteral(" Saved Links"));
    m_host.placePanel(left, top, height, width);
    m_host.showPanel();
}

int WbtLinks::readLinks()
{
    gstrWbtLinks.clear();
    lstWBTLinks.clear();
    for (const TextRecord& row : m_ctx.gdbMain.readAll(table(), fields())) {
        QCoreApplication::processEvents();
        lstWBTLinks.addItem(NullToEmpty(row.fields.value(1)));
        gstrWbtLinks.append(NullToEmpty(row.fields.value(0)));
    }
    return gstrWbtLinks.size();
}

void WbtLinks::DelClick()
{
    const int index = lstWBTLinks.listIndex();
    if (index < 0) {
        m_ctx.MsgBox(QStringLiteral("You must highlight a saved link by clicking it once!"));
        return;
    }
    try {
        for (const TextRecord& row : m_ctx.gdbMain.readAll(table(), fields())) {
            QCoreApplication::processEvents();
            if (NullToEmpty(row.fields.value(0)) == gstrWbtLinks.value(index) &&
                NullToEmpty(row.fields.value(1)) == lstWBTLinks.item(index)) {
                m_ctx.gdbMain.remove(table(), row.rowid);
                readLinks();
                return;
            }
        }
    } catch (const std::exception&) {
    }
}

void WbtLinks::ListClick()
{
    lstWBTLinks.setToolTip(gstrWbtLinks.value(lstWBTLinks.listIndex()));
}

void WbtLinks::ListDoubleClick()
{
    const int index = lstWBTLinks.listIndex();
    if (index >= 0)
        m_walker.NavigateSomeWhereElseTwo(gstrWbtLinks.value(index));
}

void WbtLinks::LinksQueryUnload()
{
    if (!gblnWBTLinksOpen)
        return;
    saveLinksPlace();
    gblnWBTLinksOpen = false;
}

void WbtLinks::saveLinksPlace()
{
    const QRect place = m_host.panelTwips();
    try {
        m_ctx.SaveSetting(Sect::Startup, Key::WBT_LinksT, QString::number(place.top()));
        m_ctx.SaveSetting(Sect::Startup, Key::WBT_LinksL, QString::number(place.left()));
        m_ctx.SaveSetting(Sect::Startup, Key::WBT_LinksH, QString::number(place.height()));
        m_ctx.SaveSetting(Sect::Startup, Key::WBT_LinksW, QString::number(place.width()));
    } catch (const std::exception&) {
    }
}
