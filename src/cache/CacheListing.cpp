#include "CacheListing.h"

#include <QFile>
#include <algorithm>
#include <dirent.h>
#include <fnmatch.h>
#include <sys/stat.h>

namespace {

enum class Kind
{
    File,
    Folder,
    Other
};

// The kind of an entry; links are followed, so a link to a folder is a
// folder and a broken link or a loop is neither.
Kind kindOf(const QByteArray& folder, const dirent* entry)
{
    if (entry->d_type == DT_REG)
        return Kind::File;
    if (entry->d_type == DT_DIR)
        return Kind::Folder;
    if (entry->d_type != DT_LNK && entry->d_type != DT_UNKNOWN)
        return Kind::Other;
    struct stat info;
    if (::stat((folder + entry->d_name).constData(), &info) != 0)
        return Kind::Other;
    if (S_ISDIR(info.st_mode))
        return Kind::Folder;
    return S_ISREG(info.st_mode) ? Kind::File : Kind::Other;
}

struct Entries
{
    QList<QByteArray> files;
    QList<QByteArray> folders;
    bool readable = false;
};

// Names compared as the file manager of the classic system lists them:
// without regard to case, then by their bytes.
bool listedBefore(const QByteArray& a, const QByteArray& b)
{
    const int c = qstricmp(a.constData(), b.constData());
    return c != 0 ? c < 0 : a < b;
}

// One folder's entries, hidden ones included, "." and ".." skipped; of the
// files only those that fit the mask.
Entries readFolder(const QByteArray& folder, const QByteArray& mask)
{
    Entries found;
    DIR* dir = ::opendir(folder.constData());
    if (!dir)
        return found;
    found.readable = true;
    while (const dirent* entry = ::readdir(dir)) {
        const char* name = entry->d_name;
        if (name[0] == '.' && (name[1] == 0 || (name[1] == '.' && name[2] == 0)))
            continue;
        switch (kindOf(folder, entry)) {
        case Kind::File:
            if (CacheListing::nameFits(QByteArray::fromRawData(name, int(qstrlen(name))), mask))
                found.files.append(QByteArray(name));
            break;
        case Kind::Folder:
            found.folders.append(QByteArray(name));
            break;
        case Kind::Other:
            break;
        }
    }
    ::closedir(dir);
    std::sort(found.files.begin(), found.files.end(), listedBefore);
    std::sort(found.folders.begin(), found.folders.end(), listedBefore);
    return found;
}

// A mask without wildcards is a plain extension, compared without fnmatch.
bool plainExtension(const QByteArray& pattern)
{
    return !pattern.contains('*') && !pattern.contains('?') && !pattern.contains('[');
}

} // namespace

bool CacheListing::nameFits(const QByteArray& name, const QByteArray& pattern)
{
    if (pattern == "*")
        return true;
    if (plainExtension(pattern)) {
        const qsizetype tail = pattern.size() + 1;
        return name.size() >= tail && name.at(name.size() - tail) == '.' &&
               qstrnicmp(name.constData() + name.size() - pattern.size(), pattern.constData(),
                         pattern.size()) == 0;
    }
    // "*.h??" also fits "a.h" and "a.ht": each trailing "?" may be absent.
    // A "[" of a typed extension is a plain character to the classic query.
    QByteArray mask = "*." + QByteArray(pattern).replace('[', "[[]");
    for (;;) {
        if (::fnmatch(mask.constData(), name.constData(), FNM_CASEFOLD | FNM_NOESCAPE) == 0)
            return true;
        if (!mask.endsWith('?'))
            return false;
        mask.chop(1);
    }
}

CacheListing::Result CacheListing::list(const QString& folder, bool collectSubs,
                                        const QString& pattern, const QString& filter)
{
    Result result;
    const QByteArray root = QFile::encodeName(folder);
    QList<QByteArray> folders{root};
    const QByteArray mask = pattern.toLocal8Bit();
    Entries rootEntries;
    if (collectSubs) {
        rootEntries = readFolder(root, mask);
        for (const QByteArray& name : std::as_const(rootEntries.folders)) {
            if (folders.size() == MaxFolders)
                break;
            folders.append(root + name + '/');
        }
        result.subFolders = folders.size() - 1;
    }
    for (int i = 0; i < folders.size() && result.files.size() < MaxFiles; ++i) {
        const Entries entries = i == 0 && collectSubs ? rootEntries : readFolder(folders[i], mask);
        if (!entries.readable) {
            result.stoppedByError = true;
            break;
        }
        const QString path = QFile::decodeName(folders[i]);
        int hits = 0;
        for (const QByteArray& name : entries.files) {
            if (result.files.size() == MaxFiles)
                break;
            const QString shown = QFile::decodeName(name);
            if (!filter.isEmpty() && !shown.toLower().contains(filter))
                continue;
            result.files.append(path + shown);
            ++hits;
        }
        if (hits > 0)
            ++result.foldersWithHits;
    }
    return result;
}

QString CacheListing::report(const Result& result)
{
    const QString total = QString::number(result.files.size());
    if (result.subFolders < 1)
        return QStringLiteral("I Found ") + total + QStringLiteral(" Files.");
    return QStringLiteral("I Found ") + total + QStringLiteral(" Files in ") +
           QString::number(result.foldersWithHits) + QStringLiteral(" Subs!");
}
