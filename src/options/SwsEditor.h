#pragma once

#include "core/Controls.h"

#include <QObject>

struct AppContext;

// The "SWS" tab of the options dialog: Browser Two's servers with suburbs.
// The buttons edit the shared gstrSWS and the lists in place; the tables
// are written at Ok or Apply.
class SwsEditor : public QObject
{
    Q_OBJECT
public:
    explicit SwsEditor(AppContext& ctx);

    Control fraOptions{QStringLiteral("fraOptions[6]")};
    Control lblWBTSWS[2] = {Control(QStringLiteral("lblWBTSWS[0]")),
                            Control(QStringLiteral("lblWBTSWS[1]"))};
    ListControl cboWBTSWS{QStringLiteral("cboWBTSWS")};
    ListControl cboWBTSWSSubs{QStringLiteral("cboWBTSWSSubs")};
    Control cmdWBTSWSAdd[2] = {Control(QStringLiteral("cmdWBTSWSAdd[0]")),
                               Control(QStringLiteral("cmdWBTSWSAdd[1]"))};
    Control cmdWBTSWSRemove[2] = {Control(QStringLiteral("cmdWBTSWSRemove[0]")),
                                  Control(QStringLiteral("cmdWBTSWSRemove[1]"))};
    Control Label13{QStringLiteral("Label13")};
    Control txtSWSServer{QStringLiteral("txtSWSServer")};
    Control Label14{QStringLiteral("Label14")};
    Control txtSWSSub{QStringLiteral("txtSWSSub")};
    Control lblUrl{QStringLiteral("lblUrl")};

    bool blnSwsChanged = false;

    // Whether a key, as its character code, may be typed into the server
    // (server true) or the suburb box.
    static bool keyAccepted(bool server, int code);

    void LoadSwsLists();
    void ServerListClick();
    // txtSWSServer lost the focus: an address ends in "/".
    void ServerLostFocus();
    void AddServerClick();
    void AddSuburbClick();
    void RemoveServerClick();
    void RemoveSuburbClick();
    // Writes gstrSWS into the two tables, in one transaction.
    void SaveSwsData();
    // Reset Defaults: the tables made anew with the built-in rows.
    void ResetDefaults();

private:
    void ShowSwsUrl();
    bool noBlank(const QString& text, const char* what);
    // Moves the rows with a server, and in them the suburbs, up to close
    // the gaps.
    void compact();
    void added();

    AppContext& m_ctx;
};
