#pragma once

#include <QDialog>

class MdbChooser;

// "Select Data Source": the table and the text field of a database file
// whose records are Browser Two's words. Its rules live in MdbChooser.
class frmMdb : public QDialog
{
    Q_OBJECT
public:
    explicit frmMdb(MdbChooser& chooser, QWidget* parent = nullptr);

    void done(int result) override;

private:
    MdbChooser& m_chooser;
};
