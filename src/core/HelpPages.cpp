#include "core/HelpPages.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <unistd.h>

// The pages are compiled into a static library, whose resources are not
// registered on their own; this must stay outside any namespace.
static void registerHelpResources()
{
    static const bool registered = [] {
        Q_INIT_RESOURCE(help);
        return true;
    }();
    Q_UNUSED(registered);
}

namespace {
const QString Root = QStringLiteral(":/help");
constexpr QFile::Permissions OwnerOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

// A folder that only this user can write to: made with mode 0700, or, when
// it is there already, a real folder of this user, closed to others. A
// link or a folder of someone else is refused: its pages could be planted.
bool makePrivateFolder(const QString& folder)
{
    const QFileInfo info(folder);
    if (info.isSymLink())
        return false;
    if (!info.exists())
        return QDir().mkpath(info.absolutePath()) && QDir().mkdir(folder, OwnerOnly);
    return info.isDir() && info.ownerId() == ::geteuid() &&
           QFile::setPermissions(folder, OwnerOnly);
}
} // namespace

QString HelpPages::desktopFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
           QStringLiteral("/Vorlan/help");
}

QString HelpPages::extractTo(const QString& folder)
{
    registerHelpResources();
    const QDir target(folder);
    if (!makePrivateFolder(folder))
        return QString();
    QDirIterator pages(Root, QDir::Files, QDirIterator::Subdirectories);
    while (pages.hasNext()) {
        const QString source = pages.next();
        const QString copy = target.filePath(source.mid(Root.size() + 1));
        if (!QDir().mkpath(QFileInfo(copy).path()))
            return QString();
        QFile::remove(copy);
        // A copy of a resource is read-only; make it the user's again so the
        // next extraction can replace it.
        if (!QFile::copy(source, copy) ||
            !QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup |
                                             QFile::ReadOther))
            return QString();
    }
    const QString index = target.filePath(QStringLiteral("index.html"));
    return QFileInfo::exists(index) ? index : QString();
}

QUrl HelpPages::indexUrl()
{
    registerHelpResources();
    return QUrl(QStringLiteral("qrc:/help/index.html"));
}
