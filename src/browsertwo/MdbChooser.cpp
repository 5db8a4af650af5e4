#include "MdbChooser.h"

#include "WordListHost.h"
#include "WordRule.h"
#include "WordSources.h"
#include "addressdata/SourceDatabase.h"
#include "addressdata/TextDatabase.h"
#include "core/AppContext.h"
#include "core/FileServices.h"
#include "core/SettingsKeys.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <algorithm>

namespace {

const QString Caption = QStringLiteral("Select Data Source");

const QStringList HelpLines{QStringLiteral("A database consists of tables"),
                            QStringLiteral("and fields. A field contains"),
                            QStringLiteral("records of a particular kind."),
                            QStringLiteral("Vorlan is looking for a table"),
                            QStringLiteral("of this database which contains"),
                            QStringLiteral("a field which has one word records"),
                            QStringLiteral("If you know the field select it."),
                            QStringLiteral("If you do not know the field cancel!")};

[[noreturn]] void fail(const QString& what)
{
    throw DbError(what.toStdString());
}

} // namespace

MdbChooser::MdbChooser(AppContext& ctx, WordListHost& host, ShowModal showModal)
    : m_ctx(ctx), m_host(host), m_showModal(std::move(showModal))
{
    form.setText(Caption);
    Label1.setText(QStringLiteral("Table"));
    Label2.setText(QStringLiteral("Field"));
    cmdOk.setText(QStringLiteral("Ok"));
    cmdCancel.setText(QStringLiteral("Cancel"));
    cmdSDShelp.setText(QStringLiteral("Help"));
    connect(&cmbTables, &Control::clicked, this, &MdbChooser::TablesClick);
    connect(&cmdOk, &Control::clicked, this, &MdbChooser::OkClick);
    connect(&cmdCancel, &Control::clicked, this, &MdbChooser::CancelClick);
    connect(&cmdSDShelp, &Control::clicked, this, &MdbChooser::HelpClick);
}

MdbChooser::~MdbChooser() = default;

void MdbChooser::StartTheFuckingThing(const QString& file)
{
    const QString path = PathBeforeLast(file, QLatin1Char('/'));
    m_name = NameAfterLast(file, QLatin1Char('/'));
    if (!QFileInfo(file).isFile()) {
        m_ctx.MsgBox(m_name + QStringLiteral(" Not Found in ") + path);
        giveUp();
        return;
    }
    QStringList tables;
    try {
        m_db = SourceDatabase::open(file);
        tables = m_db->tableNames();
    } catch (const DbError&) {
        m_ctx.MsgBox(m_name + QStringLiteral(" is not a Microsoft access database file!"));
        giveUp();
        return;
    }
    const QString table = m_ctx.GetSetting(Sect::WebBrwsrTwo, Key::DBTable, QString(""));
    const QString field = m_ctx.GetSetting(Sect::WebBrwsrTwo, Key::DBField, QString(""));
    if (table.isEmpty() || field.isEmpty()) {
        for (const QString& name : tables)
            cmbTables.addItem(name);
        m_host.clearTopmost();
        m_showModal(*this);
        return;
    }
    m_table = table;
    m_field = field;
    SilentRun = true;
    OkClick();
}

void MdbChooser::TablesClick()
{
    const QString table = cmbTables.text();
    if (table.isEmpty())
        return;
    try {
        const auto fields = m_db->fieldsOf(table);
        m_table = table;
        m_ctx.SaveSetting(Sect::WebBrwsrTwo, Key::DBTable, table);
        // Added to what is there: the box is emptied only with the dialog.
        for (const SourceField& field : fields)
            cmbName.addItem(field.name);
    } catch (const DbError& e) {
        readFailed(QString::fromStdString(e.what()));
    }
}

void MdbChooser::OkClick()
{
    m_ctx.state.gstrSites = {QString("")};
    if (cmbTables.text().trimmed().isEmpty() && cmbName.text().trimmed().isEmpty() && !SilentRun) {
        m_ctx.MsgBox(QStringLiteral("Must select a table and a field!"));
        return;
    }
    form.setText(QStringLiteral("Please Wait..."));
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    cmdOk.setEnabled(false);
    if (!SilentRun)
        m_field = cmbName.item(cmbName.listIndex());
    try {
        const int count = readWords();
        if (count < 0)
            return;
        m_db.reset();
        m_host.WBTPassSometext(m_name);
        m_host.GPysuedo(count);
        unload();
    } catch (const DbError& e) {
        readFailed(QString::fromStdString(e.what()));
    }
}

// The count of words read, or -1 when the field is not text.
int MdbChooser::readWords()
{
    if (!m_db || m_table.isEmpty())
        fail(QStringLiteral("No table is open."));
    const QVector<SourceField> fields = m_db->fieldsOf(m_table);
    auto found = std::find_if(fields.begin(), fields.end(),
                              [this](const SourceField& f) { return f.name == m_field; });
    if (found == fields.end())
        fail(QStringLiteral("Item not found in this collection."));
    const QVector<QStringList> rows = m_db->readAll(m_table, {m_field});
    if (rows.isEmpty())
        fail(QStringLiteral("No current record."));
    if (!found->text) {
        m_ctx.MsgBox(m_field + QStringLiteral(" Is not a text data field!"));
        // A silent re-read has no list to take the field out of.
        if (const int row = cmbName.items().indexOf(m_field); row >= 0)
            cmbName.removeItem(row);
        stayOpen();
        return -1;
    }
    m_ctx.SaveSetting(Sect::WebBrwsrTwo, Key::DBField, m_field);
    int count = 0;
    QVector<QString>& sites = m_ctx.state.gstrSites;
    for (const QStringList& row : rows) {
        const QString word = WordRule::fromDatabase(row.value(0));
        if (word.isEmpty())
            continue;
        if (++count == WordRule::StopCount)
            break;
        sites.append(word);
    }
    return count;
}

// The words are gone and the remembered table and field forgotten, so the
// next opening asks; the dialog stays for another choice.
void MdbChooser::readFailed(const QString& description)
{
    m_ctx.state.gstrSites = {QString("")};
    m_ctx.SaveSetting(Sect::WebBrwsrTwo, Key::DBField, QString(""));
    m_ctx.SaveSetting(Sect::WebBrwsrTwo, Key::DBTable, QString(""));
    WordSources::errorNotice(m_ctx, description);
    stayOpen();
}

void MdbChooser::stayOpen()
{
    form.setText(Caption);
    cmdOk.setEnabled(true);
}

void MdbChooser::CancelClick()
{
    m_ctx.state.gstrMdbResult = QStringLiteral("aborted");
    unload();
}

void MdbChooser::HelpClick()
{
    ShowLines(m_ctx.prompts, HelpLines, QStringLiteral("Help."), false);
}

// No word source: the main window does not open Browser Two, and the next
// opening asks for a file.
void MdbChooser::giveUp()
{
    m_ctx.SaveSetting(Sect::WebBrwsrTwo, Key::WBT_InPutFile, QString(""));
    CancelClick();
}

void MdbChooser::unload()
{
    m_db.reset();
    m_unloaded = true;
    emit unloaded();
}
