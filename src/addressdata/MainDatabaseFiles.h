#pragma once

#include "core/MainDataFiles.h"

struct AppContext;

// The main database's files on SQLite: verification by the table of names,
// creation with the built-in catalogue, and gdbMain.
class MainDatabaseFiles : public MainDataFiles
{
public:
    explicit MainDatabaseFiles(AppContext& ctx) : m_ctx(ctx) {}

    bool Verify(const QString& path) override;
    void Create() override;
    void Open() override;
    void Close() override;

private:
    AppContext& m_ctx;
};
