#include "GeoFtp.h"

#include "FtpUpload.h"
#include "core/AppContext.h"
#include "core/Endpoints.h"
#include "core/FileServices.h"
#include "core/SettingsKeys.h"

#include <QEventLoop>
#include <QFileInfo>
#include <QThread>

namespace {

const QString UserIdKey = QStringLiteral(" UserID");
const QString PasswordKey = QStringLiteral(" Pswrd");

// Runs work on a thread of its own while the window goes on painting.
void runAside(const std::function<void()>& work)
{
    QEventLoop loop;
    QThread* thread = QThread::create(work);
    QObject::connect(thread, &QThread::finished, &loop, &QEventLoop::quit);
    thread->start();
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    thread->wait();
    delete thread;
}

} // namespace

GeoFtp::GeoFtp(AppContext& ctx, Links links, QObject* parent)
    : QObject(parent), m_ctx(ctx), m_links(std::move(links))
{
    caption.setText(QStringLiteral("Publish"));
    Label1.setText(QStringLiteral("Host"));
    Label3.setText(QStringLiteral("User ID"));
    Label4.setText(QStringLiteral("Password"));
    for (const char* name :
         {Endpoint::GeoCitiesFtpHost, Endpoint::XoomFtpHost, Endpoint::TripodFtpHost})
        cboFTPHost.addItem(QString::fromLatin1(name));
    for (int slot = 1; slot <= Slots; ++slot) {
        cmdSelectFile[slot] = new Control(QStringLiteral("cmdSelectFile[%1]").arg(slot), this);
        cmdSelectFile[slot]->setText(QStringLiteral("Select File %1").arg(slot));
        connect(cmdSelectFile[slot], &Control::clicked, this, [this, slot] { selectFile(slot); });
        txtFilesToSend[slot] = new Control(QStringLiteral("txtFilesToSend[%1]").arg(slot), this);
    }
    for (int i = 0; i < 2; ++i)
        cmdSendFiles[i] = new Control(QStringLiteral("cmdSendFiles[%1]").arg(i), this);
    cmdSendFiles[0]->setText(QStringLiteral("Send"));
    cmdSendFiles[1]->setText(QStringLiteral("Close"));
    connect(cmdSendFiles[0], &Control::clicked, this, &GeoFtp::sendFiles);
    connect(cmdSendFiles[1], &Control::clicked, this, [this] { m_links.unload(); });
    cmdCreate.setText(QStringLiteral("Quick Page"));
    cmdCreate.setEnabled(bool(m_links.showScript));
    connect(&cmdCreate, &Control::clicked, this, [this] {
        if (m_links.showScript)
            m_links.showScript();
    });
    connect(&cboFTPHost, &Control::clicked, this, &GeoFtp::hostChosen);
    connect(&cboFTPHost, &Control::changed, this, &GeoFtp::hostChosen);
}

QString GeoFtp::slotKey(int slot) const
{
    return QStringLiteral("FTP File %1").arg(slot);
}

QString GeoFtp::host() const
{
    return cboFTPHost.text().trimmed();
}

void GeoFtp::Load()
{
    bool found = false;
    for (int slot = 1; slot <= Slots; ++slot) {
        m_strFiles[slot] = m_ctx.GetSetting(Sect::FTP, slotKey(slot));
        if (!m_strFiles[slot].isEmpty() && QFileInfo(m_strFiles[slot]).isFile()) {
            txtFilesToSend[slot]->setText(m_strFiles[slot]);
            found = true;
        } else {
            m_ctx.SaveSetting(Sect::FTP, slotKey(slot), QString("")); // a stale path goes
        }
    }
    for (int i = 0; i < cboFTPHost.listCount(); ++i) {
        const QString name = cboFTPHost.item(i);
        m_strPasswords[name] = m_ctx.GetSetting(Sect::FTP, name + PasswordKey);
        m_strUserIds[name] = m_ctx.GetSetting(Sect::FTP, name + UserIdKey);
    }
    StBarFTP.setText(found ? QStringLiteral("Click Send to Ftp these files to your site!")
                           : QStringLiteral("Click the buttons and select files to send to your "
                                            "site!"));
    cboFTPHost.setListIndex(m_ctx.GetSetting(Sect::FTP, Key::FTPServer, "0").toInt());
    hostChosen();
}

// The boxes show what is kept for the host, empty if nothing; a typed host
// is looked up in the store under its name.
void GeoFtp::hostChosen()
{
    const QString name = host();
    if (name.isEmpty())
        return;
    if (!m_strPasswords.contains(name)) {
        m_strPasswords[name] = m_ctx.GetSetting(Sect::FTP, name + PasswordKey);
        m_strUserIds[name] = m_ctx.GetSetting(Sect::FTP, name + UserIdKey);
    }
    txtFTPUserID.setText(m_strUserIds.value(name));
    txtFTPPassword.setText(m_strPasswords.value(name));
}

void GeoFtp::credentialsEdited()
{
    if (host().isEmpty())
        return;
    m_strUserIds[host()] = txtFTPUserID.text().trimmed();
    m_strPasswords[host()] = txtFTPPassword.text().trimmed();
}

void GeoFtp::selectFile(int slot)
{
    QString start = m_startFolder;
    if (start.isEmpty()) {
        QStringList candidates{m_ctx.GetSetting(Sect::FTP, slotKey(slot))};
        for (int other = 1; other <= Slots; ++other)
            candidates << m_ctx.GetSetting(Sect::FTP, slotKey(other));
        for (const QString& path : candidates)
            if (start.isEmpty() && !path.isEmpty() && QFileInfo::exists(path))
                start = PathBeforeLast(path, QLatin1Char('/'));
        if (start.isEmpty())
            start = OutputDirectory(m_ctx);
    }
    m_strFiles[slot] =
        m_ctx.prompts.openFileName(QStringLiteral("Select a file to send!"), start, {}, 0);
    if (m_strFiles[slot].isEmpty())
        return;
    m_startFolder = PathBeforeLast(m_strFiles[slot], QLatin1Char('/'));
    txtFilesToSend[slot]->setText(m_strFiles[slot]);
    m_ctx.SaveSetting(Sect::FTP, slotKey(slot), m_strFiles[slot]);
}

void GeoFtp::sendFiles()
{
    bool any = false;
    for (int slot = 1; slot <= Slots; ++slot)
        any = any || !txtFilesToSend[slot]->text().trimmed().isEmpty();
    if (!any)
        return void(m_ctx.MsgBox(QStringLiteral("No files have been selected to transfer!")));
    FtpTarget target;
    if (host().isEmpty() || !FtpUpload::splitHost(host(), &target.host, &target.port))
        return void(m_ctx.MsgBox(QStringLiteral("Please select a FTP Host!")));
    target.password = txtFTPPassword.text().trimmed();
    if (target.password.isEmpty())
        return void(m_ctx.MsgBox(QStringLiteral("Must have a password!")));
    m_strPasswords[host()] = target.password;
    m_ctx.SaveSetting(Sect::FTP, host() + PasswordKey, target.password);
    target.userId = txtFTPUserID.text().trimmed();
    if (target.userId.isEmpty())
        return void(m_ctx.MsgBox(QStringLiteral("Must have a User Name!")));
    m_strUserIds[host()] = target.userId;
    m_ctx.SaveSetting(Sect::FTP, host() + UserIdKey, target.userId);
    if (!m_ctx.ConnectionUp())
        return void(m_ctx.MsgBox(QStringLiteral("No internet connection!")));
    target.connectSeconds = m_links.connectSeconds;
    target.responseSeconds = m_links.responseSeconds;
    setFtpControls(false);
    sendAll(target);
    setFtpControls(true);
    StBarFTP.setText(QStringLiteral("Finished Sending Files!"));
}

void GeoFtp::sendAll(const FtpTarget& target)
{
    StBarFTP.setText(QStringLiteral("Connecting..."));
    FtpUpload upload(target);
    // Those two servers take remote names in lower case; the others keep
    // the case as typed.
    const bool lower = host().compare(Endpoint::XoomFtpHost, Qt::CaseInsensitive) == 0 ||
                       host().compare(Endpoint::TripodFtpHost, Qt::CaseInsensitive) == 0;
    for (int slot = 1; slot <= Slots; ++slot) {
        StBarFTP.setText(QStringLiteral("Sending file %1; Please Wait...").arg(slot));
        const QString path = txtFilesToSend[slot]->text().trimmed();
        if (path.isEmpty())
            continue;
        const QString bare = NameAfterLast(path, QLatin1Char('/')).isEmpty()
                                 ? path
                                 : NameAfterLast(path, QLatin1Char('/'));
        const QString remote = lower ? bare.toLower() : bare;
        if (!QFileInfo(path).isFile()) {
            StBarFTP.setText(remote + QStringLiteral(" Not found!"));
            txtFilesToSend[slot]->setText(QString());
            continue;
        }
        m_ctx.SaveSetting(Sect::FTP, slotKey(slot), path);
        const bool ascii = FileReadable(path);
        bool sent = false;
        runAside([&] { sent = upload.put(path, remote, ascii); });
        caption.setText(
            remote + (sent ? QStringLiteral(" sent Successfully!") : QStringLiteral(" Not sent!")));
    }
}

void GeoFtp::setFtpControls(bool enabled)
{
    for (Control* c : {cmdSendFiles[0], cmdSendFiles[1], static_cast<Control*>(&cboFTPHost),
                       &txtFTPPassword, &txtFTPUserID})
        c->setEnabled(enabled);
    cmdCreate.setEnabled(enabled && bool(m_links.showScript));
    for (int slot = 1; slot <= Slots; ++slot) {
        cmdSelectFile[slot]->setEnabled(enabled);
        txtFilesToSend[slot]->setEnabled(enabled);
    }
    m_blnControlsEnabled = enabled;
}

void GeoFtp::Unload()
{
    for (int slot = 1; slot <= Slots; ++slot)
        m_ctx.SaveSetting(Sect::FTP, slotKey(slot), txtFilesToSend[slot]->text().trimmed());
    if (host().isEmpty())
        return;
    // Emptying a box does not erase what is kept.
    if (!txtFTPPassword.text().trimmed().isEmpty()) {
        m_strPasswords[host()] = txtFTPPassword.text().trimmed();
        m_ctx.SaveSetting(Sect::FTP, host() + PasswordKey, m_strPasswords[host()]);
    }
    if (!txtFTPUserID.text().trimmed().isEmpty()) {
        m_strUserIds[host()] = txtFTPUserID.text().trimmed();
        m_ctx.SaveSetting(Sect::FTP, host() + UserIdKey, m_strUserIds[host()]);
    }
    if (cboFTPHost.listIndex() >= 0)
        m_ctx.SaveSetting(Sect::FTP, Key::FTPServer, QString::number(cboFTPHost.listIndex()));
}
