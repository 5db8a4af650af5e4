#include "SettingsStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QStringDecoder>
#include <exception>

namespace {

QString normalKey(const QString& section, const QString& key)
{
    return section.toLower() + QLatin1Char('/') + key.toLower();
}

// QSettings forgives almost anything; a file that is not line-based text of
// sections and key=value pairs is damaged, not merely empty.
bool looksLikeIni(const QByteArray& bytes)
{
    if (bytes.contains('\0'))
        return false;
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8.decode(bytes);
    if (utf8.hasError())
        return false;
    const auto lines = text.split(QLatin1Char('\n'));
    for (const QString& raw : lines) {
        const QString line = raw.trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char(';')) ||
            line.startsWith(QLatin1Char('#')))
            continue;
        if (line.startsWith(QLatin1Char('[')) ? !line.endsWith(QLatin1Char(']'))
                                              : !line.contains(QLatin1Char('=')))
            return false;
    }
    return true;
}

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
    QFile file(path);
    if (file.exists()) {
        if (!file.open(QIODevice::ReadOnly))
            throw SettingsError("The settings file cannot be read: " + path.toStdString());
        if (!looksLikeIni(file.readAll()))
            throw SettingsError("The settings file is damaged: " + path.toStdString());
    }
    auto settings = std::make_shared<QSettings>(path, QSettings::IniFormat);
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

void SettingsStore::DeleteSetting(const QString& app)
{
    m_files.remove(app);
    QFile::remove(filePath(app));
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

void SettingsStore::secure(const QString& app) const
{
    QFile::setPermissions(filePath(app), QFile::ReadOwner | QFile::WriteOwner);
}
