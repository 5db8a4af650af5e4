#pragma once

#include "core/Controls.h"

#include <functional>
#include <memory>

class SourceDatabase;
class WordListHost;
struct AppContext;

// The rules of frmMdb, "Select Data Source": reads the words of one text
// field of one table of a database file (Access, or SQLite of this
// program). With a table and field remembered in the settings it reads
// them without showing itself.
class MdbChooser : public QObject
{
    Q_OBJECT
public:
    // showModal shows the dialog and returns once it is unloaded.
    using ShowModal = std::function<void(MdbChooser&)>;

    MdbChooser(AppContext& ctx, WordListHost& host, ShowModal showModal);
    ~MdbChooser() override;

    Control form{QStringLiteral("frmMdb")}; // its text is the caption
    Control Label1{QStringLiteral("Label1")};
    Control Label2{QStringLiteral("Label2")};
    ListControl cmbTables{QStringLiteral("cmbTables")};
    ListControl cmbName{QStringLiteral("cmbName")};
    Control cmdOk{QStringLiteral("cmd[0]")};
    Control cmdCancel{QStringLiteral("cmd[1]")};
    Control cmdSDShelp{QStringLiteral("cmdSDShelp")};

    bool SilentRun = false;

    // Reads the file's words into gstrSites, with the dialog if the table
    // or the field is not known; "aborted" in gstrMdbResult when given up.
    void StartTheFuckingThing(const QString& file);
    bool isUnloaded() const { return m_unloaded; }

signals:
    void unloaded();

private:
    void TablesClick();
    void OkClick();
    void CancelClick();
    void HelpClick();
    int readWords(); // throws DbError
    void readFailed(const QString& description);
    void stayOpen();
    void giveUp();
    void unload();

    AppContext& m_ctx;
    WordListHost& m_host;
    ShowModal m_showModal;
    std::unique_ptr<SourceDatabase> m_db;
    QString m_table; // the table whose records are open
    QString m_field;
    QString m_name; // the file's name
    bool m_unloaded = false;
};
