#include "NetPic.h"

#include "NetPicHost.h"
#include "NetPicPages.h"
#include "core/AppContext.h"
#include "core/BuildFilter.h"
#include "core/FileServices.h"
#include "core/SettingsKeys.h"
#include "core/SingleByteText.h"
#include "core/VbRuntime.h"
#include "navigator/MainWindowCalls.h"

#include <QFile>
#include <QFileInfo>

namespace {
const char* const TempList = "N_P_Temp.tmp";
const char* const ServerLog = "Vorlan_NetPic_Server.Log";
const char* const NoUrl = "Must provide Url of pictures!";
// The generated list holds at most this many names.
constexpr int MaxNames = 298;

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

// The run of digits at one end of text: from the left or from the right.
int digitRun(const QString& text, bool fromLeft)
{
    int n = 0;
    while (n < text.size() && isDigit(fromLeft ? text[n] : text[text.size() - 1 - n]))
        ++n;
    return n;
}

qint16 number(const QString& text)
{
    try {
        return Vb::CInt(text);
    } catch (const VbError&) {
        return 0; // the failure is passed over: the number stays 0
    }
}
} // namespace

NetPic::NetPic(AppContext& ctx, MainWindowCalls& main, NetPicHost& host)
    : m_ctx(ctx), m_main(main), m_host(host)
{
    form.setText(QStringLiteral("Photos from Internet sites"));
    Label5.setText(
        QStringLiteral("Enter the full Url to one of the pictures below then click Auto."));
    cmdNPAutoDrop.setText(QStringLiteral("Auto"));
    Label3.setText(QStringLiteral("InPut file"));
    cmdNetPicInFile.setText(QStringLiteral("Select an input file"));
    Label2.setText(QStringLiteral("Ext"));
    Frame1.setText(QStringLiteral("Net Pic Options"));
    chkNumberOnLeft.setText(QStringLiteral("Numbers on the left"));
    chkUniform.setText(QStringLiteral("Uniform numbering"));
    chkNPAutoInFile.setText(QStringLiteral("Auto Infile"));
    chkNPLog.setText(QStringLiteral("Log servers"));
    cmdStart.setText(QStringLiteral("Do it"));
    cmdQuit.setText(QStringLiteral("Close"));
    cmdHelp.setText(QStringLiteral("Help"));
    connect(&chkNPAutoInFile, &Control::clicked, this, &NetPic::AutoInFileClick);
    connect(&cmdNPAutoDrop, &Control::clicked, this, &NetPic::AutoClick);
    connect(&cmdStart, &Control::clicked, this, &NetPic::StartClick);
    connect(&cmdNetPicInFile, &Control::clicked, this, &NetPic::InFileClick);
    connect(&Label2, &Control::clicked, this, &NetPic::Label2Click);
    connect(&cmdHelp, &Control::clicked, this, &NetPic::HelpClick);
}

QString NetPic::tempListPath() const
{
    return m_ctx.appPath + QLatin1String(TempList);
}

QString NetPic::logPath() const
{
    return m_ctx.appPath + QLatin1String(ServerLog);
}

void NetPic::message(const char* text)
{
    m_ctx.MsgBox(QString::fromLatin1(text));
}

void NetPic::Load()
{
    LoadNetPicSettings();
    txtInFilePath.setText(tempListPath());
    AutoInFileClick();
}

void NetPic::Unload()
{
    SaveNetPicSettings();
}

void NetPic::LoadNetPicSettings()
{
    auto get = [this](const char* key, const char* def) {
        return m_ctx.GetSetting(Sect::NetPic, key, QString::fromLatin1(def));
    };
    if (txtUrl.text().isEmpty())
        txtUrl.setText(get(Key::PrevUrl, ""));
    chkNPAutoInFile.setChecked(get(Key::AutoInFile, "1") == QLatin1String("1"));
    chkNPLog.setChecked(get(Key::LogServer, "1") == QLatin1String("1"));
    txtSuf.setText(get(Key::LastExt, "jpg"));
    txtPref.setText(get(Key::Prefix, ""));
    txtSNum.setText(get(Key::PvStartNumber, "001"));
    txtENum.setText(get(Key::PvEndNumber, "100"));
    txtInFilePath.setText(get(Key::InPutFile, ""));
    chkUniform.setChecked(get(Key::UniformValue, "0") == QLatin1String("1"));
}

void NetPic::SaveNetPicSettings()
{
    for (Control* box : {&txtSuf, &txtPref, &txtSNum, &txtENum, &txtUrl, &txtInFilePath})
        box->setText(box->text().trimmed());
    auto flag = [](const Control& c) {
        return c.isChecked() ? QStringLiteral("1") : QStringLiteral("0");
    };
    auto save = [this](const char* key, const QString& value) {
        m_ctx.SaveSetting(Sect::NetPic, key, value);
    };
    if (chkNPAutoInFile.isChecked()) {
        save(Key::LastExt, txtSuf.text());
        save(Key::Prefix, txtPref.text());
        save(Key::PvStartNumber, txtSNum.text());
        save(Key::PvEndNumber, txtENum.text());
        save(Key::UniformValue, flag(chkUniform));
    }
    save(Key::LogServer, flag(chkNPLog));
    save(Key::AutoInFile, flag(chkNPAutoInFile));
    if (!txtUrl.text().isEmpty())
        save(Key::PrevUrl, txtUrl.text());
    if (!txtInFilePath.text().isEmpty())
        save(Key::InPutFile, txtInFilePath.text());
}

void NetPic::setAutoControls(bool on)
{
    for (Control* c : {&chkUniform, &chkNumberOnLeft, &cmdNPAutoDrop, &txtAutoFill, &txtSuf,
                       &txtENum, &txtSNum, &txtPref})
        c->setEnabled(on);
}

void NetPic::AutoInFileClick()
{
    const bool on = chkNPAutoInFile.isChecked();
    setAutoControls(on);
    if (!on) {
        chkUniform.setChecked(false);
        chkNumberOnLeft.setChecked(false);
        for (Control* box : {&txtAutoFill, &txtSuf, &txtENum, &txtSNum, &txtPref})
            box->setText(QString());
        txtInFilePath.setText(m_ctx.GetSetting(Sect::NetPic, Key::InPutFile, ""));
        return;
    }
    auto get = [this](const char* key, const char* def) {
        return m_ctx.GetSetting(Sect::NetPic, key, QString::fromLatin1(def));
    };
    chkUniform.setChecked(get(Key::UniformValue, "0") == QLatin1String("1"));
    txtSuf.setText(get(Key::LastExt, "jpg"));
    txtPref.setText(get(Key::Prefix, ""));
    txtSNum.setText(get(Key::PvStartNumber, "001"));
    txtENum.setText(get(Key::PvEndNumber, "100"));
    txtInFilePath.setText(OutputDirectory(m_ctx) + QLatin1String(TempList));
}

void NetPic::AutoClick()
{
    if (!chkNPAutoInFile.isChecked()) {
        txtAutoFill.setText(QString());
        txtAutoFill.setEnabled(false);
        cmdNPAutoDrop.setEnabled(false);
        message("This function is for Auto Infile only!");
        return;
    }
    const QString url = txtAutoFill.text().trimmed();
    if (url.isEmpty()) {
        ShowLines(m_ctx.prompts,
                  {QStringLiteral("Paste the Full Url, with a picture"),
                   QStringLiteral("name, into the Auto text box!"),
                   QStringLiteral("Then click the Auto button.")},
                  QStringLiteral("No Url!"), false);
        emit autoFillWanted();
        return;
    }
    const QString base = PathBeforeLast(url, QLatin1Char('/'));
    const QString name = NameAfterLast(url, QLatin1Char('/'));
    if (url.left(7).toLower() != QLatin1String("http://") || base.isEmpty() || name.isEmpty()) {
        message("This is not a valid Url!");
        return;
    }
    const int dot = name.indexOf(QLatin1Char('.'));
    if (dot < 0) {
        message("Requires full Url, with picture name!");
        return;
    }
    QString ext = name.mid(dot + 1);
    const QString stem = name.left(dot);
    if (ext.size() > 3) {
        if (ext.toLower() != QLatin1String("jpeg")) {
            ShowLines(m_ctx.prompts,
                      {QStringLiteral("Unrecognized file name extension!"), QString(), ext,
                       QString(), QStringLiteral("In: ") + url},
                      QString(), false);
            return;
        }
        ext = ext.left(2) + ext.right(1);
    }
    const bool first = !stem.isEmpty() && isDigit(stem.front());
    const bool last = !stem.isEmpty() && isDigit(stem.back());
    if (!first && !last) {
        message("This picture file has no numbering!");
        return;
    }
    QString digits;
    QString prefix;
    if (first && last) {
        digits = stem.left(4);
    } else if (last) {
        chkNumberOnLeft.setChecked(false);
        const int run = digitRun(stem, false);
        digits = stem.right(run);
        prefix = stem.left(stem.size() - run);
    } else {
        chkNumberOnLeft.setChecked(true);
        const int run = digitRun(stem, true);
        digits = stem.left(run);
        prefix = stem.mid(run);
    }
    // The number in the address gives only the width: numbering starts at 1.
    const bool padded = digits.startsWith(QLatin1Char('0'));
    chkUniform.setChecked(padded);
    txtUrl.setText(base.trimmed());
    txtPref.setText(prefix.trimmed());
    txtSuf.setText(ext.trimmed());
    txtSNum.setText(padded ? QString(digits.size() - 1, QLatin1Char('0')) + QLatin1Char('1')
                           : QStringLiteral("1"));
    txtAutoFill.setText(QString());
}

void NetPic::StartClick()
{
    if (!m_ctx.ConnectionUp()) {
        message("No internet connection!");
        return;
    }
    for (Control* box : {&txtUrl, &txtSuf, &txtENum, &txtSNum, &txtPref})
        box->setText(box->text().trimmed());
    if (!chkNPAutoInFile.isChecked()) {
        const QString path = txtInFilePath.text().trimmed();
        if (path.isEmpty()) {
            message("Must have input file!");
            InFileClick();
            return;
        }
        if (!QFileInfo::exists(path)) {
            message("File doesn't exist!");
            txtInFilePath.setText(QString());
            InFileClick();
            return;
        }
        m_ctx.SaveSetting(Sect::NetPic, Key::InPutFile, path);
        BuildNetPicPages(path, 1);
        return;
    }
    if (!checkNumberFields())
        return;
    const QString list = writeNumberedList();
    if (list.isEmpty())
        return;
    m_ctx.SaveSetting(Sect::NetPic, Key::InPutFile, list);
    BuildNetPicPages(list, 0);
}

bool NetPic::checkNumberFields()
{
    if (txtSuf.text().isEmpty()) {
        message("Must have file name extension!");
        return false;
    }
    if (txtENum.text().isEmpty()) {
        message("Must have End number!");
        return false;
    }
    if (txtSNum.text().isEmpty()) {
        message("Must have Start number!");
        return false;
    }
    const qint16 start = number(txtSNum.text());
    const qint16 end = number(txtENum.text());
    if (start >= end) {
        message("Start# must be smaller than End#!");
        return false;
    }
    if (end == 0) {
        message("End# can not have value zero!");
        return false;
    }
    return true;
}

// The names from Start# to End#, at most 298 of them, one a line.
QString NetPic::writeNumberedList()
{
    const qint16 start = number(txtSNum.text());
    const qint16 end = number(txtENum.text());
    const int width = qMax(txtSNum.text().size(), txtENum.text().size());
    QByteArray lines;
    int counter = 0;
    for (int n = start; n <= end; ++n) {
        if (++counter == MaxNames + 1)
            break;
        QString digits = QString::number(n);
        if (chkUniform.isChecked() && digits.size() < width)
            digits = QString(width - digits.size(), QLatin1Char('0')) + digits;
        const QString tail = QLatin1Char('.') + txtSuf.text();
        const QString line = chkNumberOnLeft.isChecked() ? digits + txtPref.text() + tail
                                                         : txtPref.text() + digits + tail;
        lines += SingleByteText::lines({line});
    }
    QFile file(tempListPath());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(lines) != lines.size())
        return QString();
    return file.fileName();
}

void NetPic::BuildNetPicPages(const QString& listFile, int given)
{
    QString base = txtUrl.text().trimmed();
    if (given != 1 && base.isEmpty()) {
        message(NoUrl);
        return;
    }
    if (given == 1) {
        if (!FileReadable(listFile))
            return;
        QFile list(listFile);
        if (list.open(QIODevice::ReadOnly) && list.readLine().contains('/'))
            FullUrls = true;
        if (base.isEmpty() && !FullUrls) {
            message(NoUrl);
            return;
        }
    }
    SaveNetPicSettings();
    if (!base.endsWith(QLatin1Char('/')))
        base += QLatin1Char('/');
    if (chkNPLog.isChecked())
        NetPicPages::logServer(logPath(), base);
    const QStringList pages =
        NetPicPages::write(listFile, base, FullUrls, [this] { m_host.pumpEvents(); });
    if (pages.isEmpty())
        return;
    m_host.CommunicatWithNetPic(pages);
    m_host.unloadNetPics();
    m_main.NavigateSomeWhereElse(pages.first());
    if (given == 0)
        QFile::remove(listFile);
}

void NetPic::InFileClick()
{
    const QString name =
        BuildFilter(m_ctx, OutputDirectory(m_ctx), QString(), QStringLiteral("txt"), QString(),
                    QStringLiteral("File with picture file list!"));
    if (name.isEmpty() || !FileReadable(name))
        return;
    if (chkNPAutoInFile.isChecked()) {
        chkNPAutoInFile.setChecked(false);
        AutoInFileClick();
    }
    txtInFilePath.setText(name);
    m_ctx.SaveSetting(Sect::NetPic, Key::InPutFile, name);
}

void NetPic::Label2Click()
{
    m_upper = !m_upper;
    txtSuf.setText(m_upper ? txtSuf.text().toUpper() : txtSuf.text().toLower());
}

void NetPic::HelpClick()
{
    const QStringList lines = {
        "NetPic loads all picture files on a given",  "site in one html file. NetPic can only do",
        "this if the file's names are sequentially",  "numbered. Example S001.jpg thru S022.jpg.",
        "Prefix = letter preceeding the number.",     "Ext = file name extension of the pictures.",
        "Start# = the number of the first picture.",  "End# = the number of the last picture.",
        "Uniform numbering = S001 - S022 - S222.",    "Non uniform =         S1 -  S22 - S222.",
        "InPut file isn't necessary if Auto Infile",  "is checked. Works only with numbered files.",
        "Base Url = the site holding the pictures.",  "Auto = Paste a full Url to one of the files",
        "in text box then click the Auto button and", "NetPic will set the Prefix, Base Url, ",
        "the Start#, and Ext automatically."};
    ShowLines(m_ctx.prompts, lines, QStringLiteral("Quick help!"), false);
}

bool NetPic::numberKeyAccepted(int code)
{
    return code == 8 || (code >= '0' && code <= '9');
}

bool NetPic::prefixKeyAccepted(int code)
{
    return code >= 32;
}
