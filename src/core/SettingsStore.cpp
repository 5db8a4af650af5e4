#include "SettingsStore.h"

#include "IniText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <cstdio>
#include <exception>

namespace {

QString normalKey(const QString& section, const QString& key)
{
    return section.toLower() + QLatin1Char('/') + key.toLower();
}

bool readIni(QIODevice& device, QSettings::SettingsMap& map)
{
    return IniText::read(device.readAll(), map);
}

bool writeIni(QIODevice& device, const QSettings::SettingsMap& map)
{
    const QByteArray text = IniText::write(map);
    return device.write(text) == text.size();
}

// QSettings' own INI reader is case-sensitive and UTF-8 only.
QSettings::Format iniFormat()
{
    static const QSettings::Format format =
        QSettings::registerFormat(QStringLiteral("ini"), readIni, writeIni);
    return format;
}

constexpr QFile::Permissions OwnerOnly = QFile::ReadOwner | QFile::WriteOwner;

} // namespace

SettingsStore::SettingsStore(const QString& folder) : m_folder(folder)
{
    if (m_folder.isEmpty())
        m_folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                   QStringLiteral("/Vorlan");
}

SettingsStore::~SettingsStore() = default;

QString SettingsStore::filePath(const QString& app) const
{
    return m_folder + QLatin1Char('/') + app + QStringLiteral(".ini");
}

QSettings& SettingsStore::open(const QString& app) const
{
    const QString path = filePath(app);
    const QFileInfo info(path);
    auto it = m_files.find(app);
    if (it != m_files.end() && it->modified == info.lastModified() &&
        it->size == (info.exists() ? info.size() : -1))
        return *it->settings;
    // A FIFO or a folder in its place is damaged, and never opened: reading
    // a FIFO would wait for a writer. The text is checked here on every
    // change, since QSettings keeps what it read of a file, sound or not.
    if (info.exists()) {
        QFile file(path);
        if (!info.isFile())
            throw SettingsError("The settings file is damaged: " + path.toStdString());
        if (!file.open(QIODevice::ReadOnly))
            throw SettingsError("The settings file cannot be read: " + path.toStdString());
        QSettings::SettingsMap entries;
        if (!IniText::read(file.readAll(), entries))
            throw SettingsError("The settings file is damaged: " + path.toStdString());
    }
    auto settings = std::make_shared<QSettings>(path, iniFormat());
    if (settings->status() != QSettings::NoError)
        throw SettingsError("The settings file is damaged: " + path.toStdString());
    m_files.insert(app, File{settings, info.lastModified(), info.exists() ? info.size() : -1});
    return *settings;
}

QString SettingsStore::GetSetting(const QString& app, const QString& section, const QString& key,
                                  const QString& defaultValue) const
{
    const QVariant v = open(app).value(normalKey(section, key));
    return v.isValid() ? v.toString() : defaultValue;
}

void SettingsStore::SaveSetting(const QString& app, const QString& section, const QString& key,
                                const QString& value)
{
    QDir().mkpath(m_folder);
    open(app).setValue(normalKey(section, key), value);
    if (m_batches == 0)
        flush(app);
}

void SettingsStore::flush(const QString& app)
{
    QSettings& s = open(app);
    // It holds FTP passwords: the first file is made for its owner alone,
    // and each later one is written beside it with its mode.
    QFile file(filePath(app));
    if (!file.exists() && !file.open(QIODevice::WriteOnly | QIODevice::NewOnly, OwnerOnly))
        throw SettingsError("The settings file cannot be written: " + filePath(app).toStdString());
    file.close();
    s.sync();
    if (s.status() != QSettings::NoError)
        throw SettingsError("The settings file cannot be written: " + filePath(app).toStdString());
    secure(app);
    remember(app);
}

SettingsStore::Batch::Batch(SettingsStore& store, const QString& app) : m_store(store), m_app(app)
{
    ++m_store.m_batches;
}

SettingsStore::Batch::~Batch() noexcept(false)
{
    if (--m_store.m_batches == 0 && !std::uncaught_exceptions())
        m_store.flush(m_app);
}

// What the user typed is kept beside the file as ".bak", for its owner
// only; a file that cannot be moved aside is removed all the same.
void SettingsStore::DeleteSetting(const QString& app)
{
    m_files.remove(app);
    const QString path = filePath(app);
    const QFileInfo info(path);
    if (!info.exists() && !info.isSymLink())
        return;
    if (info.isFile() && !info.isSymLink())
        QFile::setPermissions(path, OwnerOnly);
    if (std::rename(QFile::encodeName(path).constData(),
                    QFile::encodeName(path + QStringLiteral(".bak")).constData()) != 0)
        QFile::remove(path);
}

// The file as this store wrote it is known to be sound.
void SettingsStore::remember(const QString& app) const
{
    const QFileInfo info(filePath(app));
    auto it = m_files.find(app);
    if (it != m_files.end()) {
        it->modified = info.lastModified();
        it->size = info.size();
    }
}

// A file of an older version, or one made by hand, is closed to others. One
// that is right already is left alone.
void SettingsStore::secure(const QString& app) const
{
    const QString path = filePath(app);
    const QFile::Permissions user = QFile::ReadUser | QFile::WriteUser | QFile::ExeUser;
    if ((QFile::permissions(path) & ~user) != OwnerOnly)
        QFile::setPermissions(path, OwnerOnly);
}
