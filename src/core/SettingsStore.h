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
// keys are compared without case; the file is readable by its owner only,
// since it holds FTP passwords.
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
