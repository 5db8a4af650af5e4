#include "frmMdb.h"

#include "MdbChooser.h"
#include "core/ControlBinder.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace {

QComboBox* listWithLabel(ListControl& list, Control& caption, QGridLayout* grid, int row,
                         QWidget* parent)
{
    auto* label = new QLabel(parent);
    ControlBinder::bind(caption, label);
    auto* combo = new QComboBox(parent);
    combo->setMinimumWidth(220);
    ControlBinder::bind(list, combo);
    label->setBuddy(combo);
    grid->addWidget(label, row, 0);
    grid->addWidget(combo, row, 1);
    return combo;
}

QPushButton* button(Control& control, QWidget* parent)
{
    auto* b = new QPushButton(parent);
    ControlBinder::bind(control, b);
    return b;
}

} // namespace

frmMdb::frmMdb(MdbChooser& chooser, QWidget* parent) : QDialog(parent), m_chooser(chooser)
{
    setObjectName(chooser.form.name());
    setModal(true);
    ControlBinder::bindCaption(chooser.form, this);

    auto* grid = new QGridLayout;
    listWithLabel(chooser.cmbTables, chooser.Label1, grid, 0, this);
    listWithLabel(chooser.cmbName, chooser.Label2, grid, 1, this);
    QPushButton* ok = button(chooser.cmdOk, this);
    ok->setDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(button(chooser.cmdSDShelp, this));
    buttons->addStretch(1);
    buttons->addWidget(ok);
    buttons->addWidget(button(chooser.cmdCancel, this));
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addLayout(buttons);

    connect(&chooser, &MdbChooser::unloaded, this, &QDialog::accept);
}

void frmMdb::done(int result)
{
    // Closed from its frame or with Escape: the same as Cancel.
    if (!m_chooser.isUnloaded())
        m_chooser.cmdCancel.click();
    QDialog::done(result);
}
