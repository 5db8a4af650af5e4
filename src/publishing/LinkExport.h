#pragma once

#include "ExportLines.h"
#include "addressdata/TextDatabase.h"
#include "core/Controls.h"

#include <QSaveFile>
#include <QString>
#include <QVector>
#include <array>
#include <functional>

struct AppContext;

// frmExport's rules: writes the saved links of Browser One (UsaSaved and
// JapanSaved) or of Browser Two (wbtlinks) as a comma-delimited file or as a
// web page in the output folder, and can open the page.
class LinkExport : public QObject
{
    Q_OBJECT
public:
    // What the dialog needs of the other windows.
    struct Links
    {
        // Opens a finished page in the navigator's browser.
        std::function<void(const QString&)> openPage;
        // Unloads the dialog.
        std::function<void()> unload;
    };

    LinkExport(AppContext& ctx, Links links, QObject* parent = nullptr);

    Control caption{QStringLiteral("frmExport")};
    Control frExport{QStringLiteral("frExport")};
    std::array<Control, 4> optExport{
        Control(QStringLiteral("optExport[0]")), Control(QStringLiteral("optExport[1]")),
        Control(QStringLiteral("optExport[2]")), Control(QStringLiteral("optExport[3]"))};
    Control chkLoadInIE{QStringLiteral("chkLoadInIE")};
    Control cmdExport{QStringLiteral("cmdExport")};
    Control cmdExportCancel{QStringLiteral("cmdExportCancel")};

    // The file of the last export; empty when nothing was written.
    QString strPath() const { return m_strPath; }

private:
    void selectOption(int index);
    void exportClick();
    // Writes the export; false when there was nothing to write or the file
    // could not be made (the user has been told).
    bool WriteExport(int format, int source);
    void writeBrowserOne(int format);
    void writeBrowserTwo(int format);
    // Reads the table of intTableRow; the rows stay in m_rows. An empty or
    // unreadable table leaves intRecordCount as it was.
    void OpenExportTable();
    void write(const QByteArray& bytes);
    // Tells the user why the file could not be written; nothing is left.
    void writeFault(const QString& fault);
    void nothingToExport();

    AppContext& m_ctx;
    Links m_links;
    QSaveFile m_file;
    QString m_strPath;
    int m_intTableRow = 0;
    int m_intRecordCount = 0;
    QVector<TextRecord> m_rows;
    bool m_writeFailed = false;
};
