#pragma once

#include "TestContext.h"
#include "addressdata/LinkImport.h"
#include "addressdata/LinkImportHost.h"

// Records what the import asks of the screen.
class RecordingImportHost : public LinkImportHost
{
public:
    void showWait(const QString& text) override { calls << "wait " + text; }
    void unloadWait() override { calls << "unload"; }
    void refreshSavedLinks() override { calls << "refresh"; }
    QStringList calls;
};

// The import of old links on a new main database, with a folder for the
// old files and the dialog's answers scripted.
struct ImportRig
{
    TestContext t;
    RecordingImportHost host;
    QString files;

    ImportRig();
    // Writes a file of the old program into the folder; its path.
    QString write(const QString& name, const QByteArray& bytes);
    // Runs the import with the paths as the dialog's answers, then Cancel.
    LinkImport::Counts run(const QStringList& paths);
    // The records of a table of the main database.
    QVector<QStringList> rows(int table);
    void addSaved(int table, const QStringList& row);
    int fileDialogs() const;
};
