#pragma once

#include "LinkNote.h"

#include <QDialog>
#include <functional>

class QLineEdit;
class QPushButton;

// The modal note of a link to save: one line of text with Ok and Cancel.
// Its rules live in LinkNote.
class frmWBONote : public QDialog
{
    Q_OBJECT
public:
    // pageTitle: the title of Browser One's page, see LinkNote::Load.
    frmWBONote(AppContext& ctx, SavedLinks& links, const std::function<QString()>& pageTitle,
               QWidget* parent = nullptr);
    ~frmWBONote() override;

    LinkNote& rules() { return m_rules; }
    QLineEdit* txtComment() const { return m_comment; }

    void done(int result) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    LinkNote m_rules;
    QLineEdit* m_comment = nullptr;
    QPushButton* m_ok = nullptr;
    QPushButton* m_cancel = nullptr;
    bool m_unloaded = false;
};
