#include "MainDatabaseFiles.h"

#include "MainDatabase.h"
#include "TextDatabase.h"
#include "core/AppContext.h"

bool MainDatabaseFiles::Verify(const QString& path)
{
    return VerifyMainDatabase(path, m_ctx.state.gastrTables);
}

void MainDatabaseFiles::Create()
{
    CreateMainDatabase(m_ctx.state);
}

void MainDatabaseFiles::Open()
{
    m_ctx.gdbMain.open(m_ctx.state.gstrGeoData);
}

void MainDatabaseFiles::Close()
{
    m_ctx.gdbMain.close();
}
