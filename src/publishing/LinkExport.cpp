#include "LinkExport.h"

#include "core/AppContext.h"
#include "core/Endpoints.h"
#include "core/FileServices.h"
#include "core/SettingsKeys.h"
#include "core/TableNames.h"

namespace {

enum Format
{
    Text = 1,
    Page = 2
};

const char* const FileNames[4] = {"WBO_Links.Csv", "WBO_Links.Htm", "WBT_Links.Csv",
                                  "WBT_Links.Htm"};

const char* const Captions[4] = {
    "Export Web Browser One links to comma delimited text file.",
    "Export Web Browser One links to an Html file.",
    "Export Web Browser Two links to comma delimited text file.",
    "Export Web Browser Two links to an Html file.",
};

} // namespace

LinkExport::LinkExport(AppContext& ctx, Links links, QObject* parent)
    : QObject(parent), m_ctx(ctx), m_links(std::move(links))
{
    caption.setText(QStringLiteral("Export Saved Links"));
    frExport.setText(QStringLiteral("Select Export Format"));
    for (int i = 0; i < 4; ++i) {
        optExport[i].setText(QString::fromLatin1(Captions[i]));
        connect(&optExport[i], &Control::clicked, this, [this, i] { selectOption(i); });
    }
    chkLoadInIE.setText(QStringLiteral("Load export Html in Browser."));
    chkLoadInIE.setChecked(m_ctx.GetSetting(Sect::Startup, Key::LoadExportInIE) == "1");
    chkLoadInIE.setVisible(false);
    connect(&chkLoadInIE, &Control::clicked, this, [this] {
        m_ctx.SaveSetting(Sect::Startup, Key::LoadExportInIE,
                          chkLoadInIE.isChecked() ? QStringLiteral("1") : QString(""));
    });
    cmdExport.setText(QStringLiteral("Export"));
    connect(&cmdExport, &Control::clicked, this, &LinkExport::exportClick);
    cmdExportCancel.setText(QStringLiteral("Cancel"));
    connect(&cmdExportCancel, &Control::clicked, this, [this] { m_links.unload(); });
}

void LinkExport::selectOption(int index)
{
    for (int i = 0; i < 4; ++i)
        optExport[i].setChecked(i == index);
    chkLoadInIE.setVisible(index == 1 || index == 3);
}

void LinkExport::exportClick()
{
    int index = -1;
    for (int i = 0; i < 4 && index < 0; ++i)
        if (optExport[i].isChecked())
            index = i;
    if (index < 0) {
        m_ctx.MsgBox(QStringLiteral("You must select an Export format!"));
        return;
    }
    m_strPath = UniqueFileName(OutputDirectory(m_ctx) + QString::fromLatin1(FileNames[index]));
    const bool written = WriteExport(index % 2 == 0 ? Text : Page, index < 2 ? 1 : 2);
    if (written && chkLoadInIE.isVisible() && chkLoadInIE.isChecked() && !m_strPath.isEmpty())
        m_links.openPage(m_strPath);
    m_links.unload();
}

bool LinkExport::WriteExport(int format, int source)
{
    m_file.setFileName(m_strPath);
    m_writeFailed = false;
    // Unbuffered, so that a write the disk takes only in part is seen at
    // once: the buffered device reports it nowhere.
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        writeFault(m_file.errorString());
        return false;
    }
    if (source == 1)
        writeBrowserOne(format);
    else
        writeBrowserTwo(format);
    if (m_strPath.isEmpty())
        return false;
    // The file appears only complete: a fault while writing leaves none.
    QString fault = m_file.errorString();
    if (m_writeFailed)
        m_file.cancelWriting();
    if (!m_file.commit()) {
        if (!m_writeFailed)
            fault = m_file.errorString();
        writeFault(fault);
        return false;
    }
    return true;
}

// USA first, then Japan. A Japan table that is empty keeps the USA count,
// and its rows repeat the last USA row's values under the Japan address:
// kept as the program has always written it.
void LinkExport::writeBrowserOne(int format)
{
    QString neighborhood, suburb, house, comment, date;
    for (int pass = 1; pass <= 2; ++pass) {
        m_intTableRow = pass == 1 ? Tbl::UsaSaved : Tbl::JapanSaved;
        const QString baseUrl =
            QString::fromLatin1(pass == 1 ? Endpoint::UsaSiteUrl : Endpoint::JapanSiteUrl) + "/";
        OpenExportTable();
        if (m_intRecordCount == 0) {
            nothingToExport();
            return;
        }
        if (format == Page)
            write(pass == 1 ? ExportLines::pageHeader() : ExportLines::japanHeading());
        for (int row = 0; row < m_intRecordCount; ++row) {
            if (row < m_rows.size()) {
                const QStringList& f = m_rows[row].fields;
                neighborhood = NullToEmpty(f.value(0));
                if (!f.value(1).isNull())
                    suburb = f.value(1);
                house = NullToEmpty(f.value(2));
                comment = NullToEmpty(f.value(3));
                date = NullToEmpty(f.value(4));
            }
            const QString address = baseUrl + neighborhood + (suburb.isEmpty() ? "" : "/") +
                                    suburb + (pass == 1 ? "/" : "-") + house + "/";
            const ExportLines::Row line{comment, address, date};
            write(format == Page ? ExportLines::pageRow(line, true)
                                 : ExportLines::textLine(line, true));
        }
        m_rows.clear();
    }
    if (format == Page)
        write(ExportLines::pageFooter());
}

void LinkExport::writeBrowserTwo(int format)
{
    m_intTableRow = Tbl::WbtLinks;
    OpenExportTable();
    if (m_intRecordCount == 0) {
        nothingToExport();
        return;
    }
    if (format == Page)
        write(ExportLines::pageHeader());
    for (const TextRecord& record : m_rows) {
        const ExportLines::Row line{NullToEmpty(record.fields.value(1)),
                                    NullToEmpty(record.fields.value(0)), QString()};
        write(format == Page ? ExportLines::pageRow(line, false)
                             : ExportLines::textLine(line, false));
    }
    if (format == Page)
        write(ExportLines::pageFooter());
    m_rows.clear();
}

void LinkExport::OpenExportTable()
{
    const TableNameArray& tables = m_ctx.state.gastrTables;
    try {
        m_rows = m_ctx.gdbMain.readAll(tables[m_intTableRow][0], FieldNames(tables, m_intTableRow));
    } catch (const DbError&) {
        m_rows.clear(); // a table that cannot be read has nothing to give
    }
    if (!m_rows.isEmpty())
        m_intRecordCount = m_rows.size();
}

void LinkExport::write(const QByteArray& bytes)
{
    if (m_file.write(bytes) != bytes.size())
        m_writeFailed = true;
}

void LinkExport::writeFault(const QString& fault)
{
    m_ctx.MsgBox(
        QStringLiteral("The links could not be exported to %1.\n%2").arg(m_strPath, fault));
    m_strPath.clear();
}

void LinkExport::nothingToExport()
{
    m_file.cancelWriting();
    m_file.commit(); // discards what was written
    m_strPath.clear();
    m_ctx.MsgBox(QStringLiteral("Nothing to Export!"));
}
