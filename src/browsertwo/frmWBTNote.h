#pragma once

#include <QWidget>

class QPlainTextEdit;
class WbtLinks;

// "Enter a Note": the note of a link that Browser Two saves, the page's
// title or the default note to start from.
class frmWBTNote : public QWidget
{
    Q_OBJECT
public:
    frmWBTNote(WbtLinks& links, QWidget* parent);

    QPlainTextEdit* txtNote() const { return m_note; }

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    WbtLinks& m_links;
    QPlainTextEdit* m_note = nullptr;
};
