#pragma once

#include "core/Controls.h"

#include <QObject>
#include <functional>

class OptionsHost;
struct AppContext;

// The "RandNav" tab of the options dialog: the Neighborhoods among which
// RandNav draws, for the region in use when the dialog opened, and whether
// it uses them. The list lives in lstRNS(0) until Ok or Apply.
class RandNavEditor : public QObject
{
    Q_OBJECT
public:
    RandNavEditor(AppContext& ctx, OptionsHost& host, std::function<void(bool)> enableControls);

    Control Label1{QStringLiteral("Label1")};
    Control Label2{QStringLiteral("Label2")};
    Control Label3{QStringLiteral("Label3")};
    Control Label4{QStringLiteral("Label4")};
    ListControl lstRNS[2] = {ListControl(QStringLiteral("lstRNS[0]")),
                             ListControl(QStringLiteral("lstRNS[1]"))};
    Control cmdRandNavAdd[2] = {Control(QStringLiteral("cmdRandNavAdd[0]")),
                                Control(QStringLiteral("cmdRandNavAdd[1]"))};
    Control chkUseSelected{QStringLiteral("chkUseSelected")};

    bool blnRandNavChanged = false;

    // Fills both lists and the check for the region in use.
    void Load();
    void AddClick();
    void RemoveClick();
    // Ok and Apply: the selection table rewritten when the list changed,
    // then the region's flag and setting from the check box.
    void Save();

private:
    int table() const;
    void rewrite();

    AppContext& m_ctx;
    OptionsHost& m_host;
    std::function<void(bool)> m_enable;
};
