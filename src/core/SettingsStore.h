#pragma once

#include <QDateTime>
#include <QHash>
#include <QString>
#include <memory>
#include <stdexcept>

class QSettings;

// A store that cannot be read or written: the start-up turns this into the
// settings error route.
class SettingsError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// The per-user store of text values by application, section and key.
// One INI file per application in the user's config folder; sections and
// keys are compared without case, in the file as read too; a file that is
// not UTF-8 is read as Windows-1252. The file is readable by its owner
// only from its first moment, since it holds FTP passwords. A file that
// cannot be read as settings, or a FIFO or folder in its place, is damaged:
// every call throws SettingsError until DeleteSetting.
class SettingsStore
{
public:
    // folder: where the application files live; empty means the user's
    // config folder + "/Vorlan".
    explicit SettingsStore(const QString& folder = QString());
    ~SettingsStore();

    QString GetSetting(const QString& app, const QString& section, const QString& key,
                       const QString& defaultValue = QString()) const;
    void SaveSetting(const QString& app, const QString& section, const QString& key,
                     const QString& value);
    // Removes the application's file, keeping it beside as ".ini.bak"
    // (mode 0600), so that nothing the user typed is lost for good.
    void DeleteSetting(const QString& app);

    // Within a batch, writes reach the file once, when the batch ends.
    class Batch
    {
    public:
        Batch(SettingsStore& store, const QString& app);
        ~Batch() noexcept(false);
        Batch(const Batch&) = delete;
        Batch& operator=(const Batch&) = delete;

    private:
        SettingsStore& m_store;
        QString m_app;
    };

    QString filePath(const QString& app) const;
    QString folder() const { return m_folder; }

private:
    struct File
    {
        std::shared_ptr<QSettings> settings;
        QDateTime modified;
        qint64 size = -1;
    };
    QSettings& open(const QString& app) const;
    void secure(const QString& app) const;
    void remember(const QString& app) const;
    void flush(const QString& app);

    QString m_folder;
    // Each file is checked again when another process changed it.
    mutable QHash<QString, File> m_files;
    int m_batches = 0;
};
