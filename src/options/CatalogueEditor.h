#pragma once

#include "core/Controls.h"

#include <QObject>
#include <functional>

class OptionsHost;
struct AppContext;

// The "Add/Remove" tab of the options dialog: Neighborhoods and Suburbs of
// either site added through frmAdd and deleted here, straight into the
// catalogue tables. A deleted Neighborhood's later Suburbs are renumbered,
// since a Suburb names its Neighborhood by position.
class CatalogueEditor : public QObject
{
    Q_OBJECT
public:
    static constexpr int UsaBasic = 41;
    static constexpr int JapanBasic = 14;

    // enableControls switches all the dialog's controls off or on.
    CatalogueEditor(AppContext& ctx, OptionsHost& host, std::function<void(bool)> enableControls);

    Control fraOptions{QStringLiteral("fraOptions[3]")};
    Control Label1{QStringLiteral("Label1")};
    Control Label2{QStringLiteral("Label2")};
    Control Label3{QStringLiteral("Label3")};
    Control Label4{QStringLiteral("Label4")};
    Control Label5{QStringLiteral("Label5")};
    Control Label9{QStringLiteral("Label9")};
    ListControl cmbServer{QStringLiteral("cmbServer")};
    ListControl cmbN{QStringLiteral("cmbN")};
    ListControl cmbS{QStringLiteral("cmbS")};
    Control cmdAdd[2] = {Control(QStringLiteral("cmdAdd[0]")),
                         Control(QStringLiteral("cmdAdd[1]"))};
    Control cmdRemove[2] = {Control(QStringLiteral("cmdRemove[0]")),
                            Control(QStringLiteral("cmdRemove[1]"))};

    // The tables were changed: Ok, Apply and Cancel reload the catalogue.
    bool blnCatalogueChanged = false;

    // Selects the site's entry, which reads its Neighborhoods.
    void selectServer(bool japan);

    void ServerClick();
    void NClick();
    void SClick();
    void AddClick(int index);
    void RemoveSuburbClick();
    void RemoveNeighborhoodClick();

private:
    bool japanSite() const { return cmbServer.listIndex() == 1; }
    bool basic(int listIndex) const;
    void resetTips();
    QString tableName(int row) const;
    QString field(int row, int column) const;
    void runDeletion(const QString& what, const std::function<void(QStringList&)>& work,
                     void (CatalogueEditor::*refresh)());
    void deleteSuburb(QStringList& deleted);
    void deleteNeighborhood(int position, QStringList& deleted);
    void showDeleted(const QStringList& deleted);

    AppContext& m_ctx;
    OptionsHost& m_host;
    std::function<void(bool)> m_enable;
    int intNeighborhoodTable = 0;
    int intSuburbTable = 1;
};
