#pragma once

#include "core/Controls.h"

#include <QObject>

struct AppContext;
class MainWindowCalls;
class NetPicHost;

// The rules of frmNetPics, "Photos from Internet sites": the numbering of
// pictures read from one address (Auto), the list of names made from it or
// given as a file, and the picture pages built from that list and handed
// to Browser One.
class NetPic : public QObject
{
    Q_OBJECT
public:
    NetPic(AppContext& ctx, MainWindowCalls& main, NetPicHost& host);

    Control form{QStringLiteral("frmNetPics")};
    Control Label5{QStringLiteral("Label5")};
    Control txtAutoFill{QStringLiteral("txtAutoFill")};
    Control cmdNPAutoDrop{QStringLiteral("cmdNPAutoDrop")};
    Control Label3{QStringLiteral("Label3")};
    Control txtInFilePath{QStringLiteral("txtInFilePath")};
    Control cmdNetPicInFile{QStringLiteral("cmdNetPicInFile")};
    Control txtPref{QStringLiteral("txtPref")};
    Control Label2{QStringLiteral("Label2")};
    Control txtSuf{QStringLiteral("txtSuf")};
    Control txtSNum{QStringLiteral("txtSNum")};
    Control txtENum{QStringLiteral("txtENum")};
    Control txtUrl{QStringLiteral("txtUrl")};
    Control Frame1{QStringLiteral("Frame1")};
    Control chkNumberOnLeft{QStringLiteral("chkNumberOnLeft")};
    Control chkUniform{QStringLiteral("chkUniform")};
    Control chkNPAutoInFile{QStringLiteral("chkNPAutoInFile")};
    Control chkNPLog{QStringLiteral("chkNPLog")};
    Control cmdStart{QStringLiteral("cmdStart")};
    Control cmdQuit{QStringLiteral("cmdQuit")};
    Control cmdHelp{QStringLiteral("cmdHelp")};

    QString InputFileName;
    bool FullUrls = false;

    void Load();
    // The settings part of the Unload; the window saves its place.
    void Unload();
    void PassNPVar(const QString& value) { InputFileName = value; }

    void AutoInFileClick();
    void AutoClick();
    void StartClick();
    void InFileClick();
    void Label2Click();
    void HelpClick();

    void LoadNetPicSettings();
    void SaveNetPicSettings();
    void BuildNetPicPages(const QString& listFile, int given);

    // The keys the number boxes and the prefix box take.
    static bool numberKeyAccepted(int code);
    static bool prefixKeyAccepted(int code);

signals:
    // The picture address is wanted: the window puts the focus there.
    void autoFillWanted();

public:
    // The program's folder files: the generated list and the server log.
    QString tempListPath() const;
    QString logPath() const;

private:
    void setAutoControls(bool on);
    bool checkNumberFields();
    QString writeNumberedList();
    void message(const char* text);

    AppContext& m_ctx;
    MainWindowCalls& m_main;
    NetPicHost& m_host;
    bool m_upper = false; // Label2's toggle: upper case next
};
