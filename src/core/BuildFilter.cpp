#include "BuildFilter.h"

#include "AppContext.h"
#include "FileServices.h"

#include <QFileInfo>

namespace {

// One extension's part of the classic filter text.
QString filterFor(const QString& extension)
{
    if (extension.isEmpty())
        return QString();
    const QString lower = extension.toLower();
    QString name;
    if (lower == QLatin1String("txt"))
        name = QStringLiteral("Text files");
    else if (lower == QLatin1String("mdb"))
        name = QStringLiteral("Access database files");
    else
        name = QStringLiteral("Other types");
    return name + QStringLiteral(" (*.") + extension + QStringLiteral(")|*.") + extension +
           QLatin1Char('|');
}

QString startFolder(const QString& folder, const QString& outputDirectory)
{
    QString start = QFileInfo(folder).isDir() ? folder : outputDirectory;
    if (start.size() > 1 && start.endsWith(QLatin1Char('/')))
        start.chop(1);
    return start;
}

} // namespace

QStringList FileDialogFilters(const QString& classicFilter)
{
    QStringList entries;
    const QStringList parts = classicFilter.split(QLatin1Char('|'));
    for (int i = 0; i + 1 < parts.size(); i += 2) {
        const QString& name = parts.at(i);
        if (name.isEmpty())
            continue;
        const QString patterns =
            parts.at(i + 1).split(QLatin1Char(';'), Qt::SkipEmptyParts).join(QLatin1Char(' '));
        const QString shown = QLatin1Char('(') + patterns + QLatin1Char(')');
        entries.append(name.endsWith(shown) ? name : name + QLatin1Char(' ') + shown);
    }
    return entries;
}

QString BuildFilter(AppContext& ctx, const QString& folder, const QString& /*unused*/,
                    const QString& ext1, const QString& ext2, const QString& title)
{
    return BuildFilter(ctx.prompts, OutputDirectory(ctx), folder, ext1, ext2, title);
}

QString BuildFilter(PromptService& prompts, const QString& outputDirectory, const QString& folder,
                    const QString& ext1, const QString& ext2, const QString& title)
{
    const QString filter =
        QStringLiteral("All Files (*.*)|*.*|") + filterFor(ext1) + filterFor(ext2);
    // The entry of ext1 comes second and is the one offered first.
    const int selected = ext1.isEmpty() ? 0 : 1;
    const QString chosen = prompts.openFileName(title, startFolder(folder, outputDirectory),
                                                FileDialogFilters(filter), selected);
    if (chosen.isEmpty() || !QFileInfo(chosen).isFile())
        return QString("");
    return chosen;
}
