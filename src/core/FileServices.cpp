#include "FileServices.h"

#include "AppContext.h"
#include "SettingsKeys.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

// A name is taken by anything that stands there, a link that leads nowhere
// too: a file opened under its name would be made where the link points.
bool nameTaken(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

} // namespace

QString UniqueFileName(const QString& path)
{
    if (!nameTaken(path))
        return path;
    const int dot = path.indexOf(QLatin1Char('.'), path.lastIndexOf(QLatin1Char('/')) + 1);
    const QString base = dot < 0 ? path : path.left(dot);
    const QString extension = dot < 0 ? QString() : path.mid(dot);
    for (int n = 1;; ++n) {
        const QString candidate = base + QString::number(n) + extension;
        if (!nameTaken(candidate))
            return candidate;
    }
}

QString PathBeforeLast(const QString& text, QChar separator)
{
    const int at = text.lastIndexOf(separator);
    return at < 0 ? QString("") : text.left(at + 1);
}

QString NameAfterLast(const QString& text, QChar separator)
{
    const int at = text.lastIndexOf(separator);
    return at < 0 ? QString("") : text.mid(at + 1);
}

QString OutputDirectory(const AppContext& ctx)
{
    return OutputDirectory(ctx.settings, ctx.state.gstrAppName, ctx.appPath);
}

QString OutputDirectory(const SettingsStore& settings, const QString& appName,
                        const QString& appPath)
{
    QString fallback = appPath;
    if (!fallback.endsWith(QLatin1Char('/')))
        fallback += QLatin1Char('/');
    QString folder;
    try {
        folder = settings.GetSetting(appName, Sect::CacheManager, Key::DefaultOutPutDir, fallback);
    } catch (const SettingsError&) {
        return fallback;
    }
    return QFileInfo(folder).isDir() ? folder : fallback;
}

bool FileReadable(const QString& path)
{
    if (QFileInfo(path).isDir())
        return false;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    // Read through in pieces, since a word source may be a file of a
    // gigabyte. Text input of the classic kind ends at the first end-of-file
    // byte (Ctrl+Z): a file holding one does not read whole as text.
    constexpr qint64 Chunk = 1 << 20;
    for (QByteArray piece = file.read(Chunk); !piece.isEmpty(); piece = file.read(Chunk)) {
        if (piece.contains('\x1a'))
            return false;
    }
    return file.error() == QFile::NoError;
}

QString ReplaceByCopy(const QString& from, const QString& to)
{
    QFile source(from);
    if (!source.open(QIODevice::ReadOnly))
        return source.errorString();
    // QSaveFile writes to a new name beside the target, puts it on the disk
    // and renames it over the target at commit; a failed one is removed.
    QSaveFile copy(to);
    if (!copy.open(QIODevice::WriteOnly))
        return copy.errorString();
    copy.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    constexpr qint64 Chunk = 1 << 20;
    for (;;) {
        const QByteArray bytes = source.read(Chunk);
        if (source.error() != QFile::NoError)
            return source.errorString();
        if (bytes.isEmpty())
            break;
        if (copy.write(bytes) != bytes.size())
            return copy.errorString();
    }
    if (!copy.commit())
        return copy.errorString();
    return QString();
}
