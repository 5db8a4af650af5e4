#pragma once

#include "core/Controls.h"

#include <QMap>
#include <QObject>
#include <array>
#include <functional>

struct AppContext;
struct FtpTarget;

// frmGeoFtp's rules: up to five files sent to the user's folder on one FTP
// host, with the user id and password kept per host. Besides the three
// hosts of the list, a typed "host" or "host:port" is taken, its user id
// and password kept under its name in the same way.
class GeoFtp : public QObject
{
    Q_OBJECT
public:
    static constexpr int Slots = 5;

    struct Links
    {
        // Opens the page builder; empty while the program has none.
        std::function<void()> showScript;
        std::function<void()> unload;
        // The waits of a transfer; tests shorten them.
        int connectSeconds = 20;
        int responseSeconds = 30;
    };

    GeoFtp(AppContext& ctx, Links links, QObject* parent = nullptr);

    Control caption{QStringLiteral("frmGeoFtp")};
    Control Label1{QStringLiteral("Label1")};
    ListControl cboFTPHost{QStringLiteral("cboFTPHost")};
    Control Label3{QStringLiteral("Label3")};
    Control txtFTPUserID{QStringLiteral("txtFTPUserID")};
    Control Label4{QStringLiteral("Label4")};
    Control txtFTPPassword{QStringLiteral("txtFTPPassword")};
    // Index 0 unused: the slots are numbered 1 to 5.
    std::array<Control*, Slots + 1> cmdSelectFile{};
    std::array<Control*, Slots + 1> txtFilesToSend{};
    std::array<Control*, 2> cmdSendFiles{};
    Control cmdCreate{QStringLiteral("cmdCreate")};
    Control StBarFTP{QStringLiteral("StBarFTP")};

    // Load: the kept files, credentials and host.
    void Load();
    // Losing the focus of the user id or the password box.
    void credentialsEdited();
    // Unload: keeps the slots, the credentials and the host.
    void Unload();
    bool controlsEnabled() const { return m_blnControlsEnabled; }

private:
    void hostChosen();
    QString host() const;
    void selectFile(int slot);
    void sendFiles();
    void sendAll(const FtpTarget& target);
    void setFtpControls(bool enabled);
    QString slotKey(int slot) const;

    AppContext& m_ctx;
    Links m_links;
    std::array<QString, Slots + 1> m_strFiles;
    QMap<QString, QString> m_strPasswords;
    QMap<QString, QString> m_strUserIds;
    QString m_startFolder;
    bool m_blnControlsEnabled = true;
};
