#include "ImportRig.h"

#include <QDir>
#include <QFile>

ImportRig::ImportRig()
{
    t.createAndOpenDatabase();
    files = t.folders.root() + "/old";
    QDir().mkpath(files);
}

QString ImportRig::write(const QString& name, const QByteArray& bytes)
{
    const QString path = files + "/" + name;
    QFile f(path);
    f.open(QIODevice::WriteOnly);
    f.write(bytes);
    return path;
}

LinkImport::Counts ImportRig::run(const QStringList& paths)
{
    for (const QString& p : paths)
        t.prompts.answerPath(p);
    LinkImport import(t.ctx, host);
    import.run();
    return import.counts();
}

QVector<QStringList> ImportRig::rows(int table)
{
    return FieldTexts(t.db.readAll(t.state.gastrTables[table][0]));
}

void ImportRig::addSaved(int table, const QStringList& row)
{
    t.db.append(t.state.gastrTables[table][0], FieldNames(t.state.gastrTables, table), {row});
}

int ImportRig::fileDialogs() const
{
    int n = 0;
    for (const auto& s : t.prompts.shown)
        n += s.kind == "openFile";
    return n;
}
