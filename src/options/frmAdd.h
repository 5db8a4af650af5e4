#pragma once

#include "AreaAdder.h"

#include <QDialog>

class QLineEdit;

// "New Area Addition Window": the window around AreaAdder, shown modally
// from the options dialog's Add/Remove tab.
class frmAdd : public QDialog
{
    Q_OBJECT
public:
    frmAdd(AppContext& ctx, QWidget* parent = nullptr);

    AreaAdder& rules() { return m_rules; }
    // Shows the window for the tables and mode until it closes; true when
    // it was quit with Quit after an addition.
    bool AddAreas(int neighborhoodTable, int suburbTable, int addMode, int neighborhood);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    AreaAdder m_rules;
    QLineEdit* m_boxes[3] = {};
    bool m_quit = false;
};
