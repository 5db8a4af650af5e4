#pragma once

#include "PageBuilder.h"

#include <QDialog>
#include <memory>

class QComboBox;
class QLineEdit;

// The page builder: a button for each form item with the boxes and lists
// that shape it, the page's colour, font and centring, Write file, the two
// templates and Close. The rules are PageBuilder's; the window binds.
class frmVBScript : public QDialog
{
    Q_OBJECT
public:
    // openPage opens a written page in the navigator's browser.
    frmVBScript(AppContext& ctx, std::function<void(const QString&)> openPage,
                QWidget* parent = nullptr);
    ~frmVBScript() override;

    PageBuilder& rules() { return *m_rules; }

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildItems();
    void buildPageRow();
    QLineEdit* textBox(int index);
    QComboBox* list(int index);
    void showCenter();
    void place();

    AppContext& m_ctx;
    std::unique_ptr<PageBuilder> m_rules;
    class QGridLayout* m_grid = nullptr;
    class QPushButton* m_center = nullptr;
};
