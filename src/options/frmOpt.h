#pragma once

#include "OptionsDialog.h"

#include <QDialog>

class QGridLayout;
class QGroupBox;
class QLineEdit;
class QTabWidget;

// "Vorlan Options": the modal window around OptionsDialog's rules, its six
// tabs in a tab widget.
class frmOpt : public QDialog
{
    Q_OBJECT
public:
    frmOpt(AppContext& ctx, MainWindowCalls& main, OptionsHost& host, QWidget* parent = nullptr);
    ~frmOpt() override;

    OptionsDialog& rules() { return m_rules; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void reject() override;

private:
    QGridLayout* page(int tab, Control& frame);
    void buildBasic();
    void buildAdvanced();
    void buildCatalogue();
    void buildRandNav();
    void buildWbt();
    void buildSws();
    void buildButtons();
    QLineEdit* edit(Control& model, Control& label, QGridLayout* grid, int row, int column,
                    int span = 1);
    void bindTabs();
    bool ctrlTab(QEvent* event);

    OptionsDialog m_rules;
    QTabWidget* m_tabs = nullptr;
    QLineEdit* m_waitTime = nullptr;
    QLineEdit* m_limit = nullptr;
    QLineEdit* m_swsServer = nullptr;
    QLineEdit* m_swsSub = nullptr;
    QLineEdit* m_wbtAdd = nullptr;
    bool m_unloaded = false;
};
