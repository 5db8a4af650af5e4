#pragma once

#include <QWidget>

class QListWidget;
class WbtLinks;

// Browser Two's saved links: one list of their notes; a double click opens
// the link in the walker.
class frmWBTLinks : public QWidget
{
    Q_OBJECT
public:
    frmWBTLinks(WbtLinks& links, QWidget* parent);

    QListWidget* lstWBTLinks() const { return m_list; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    WbtLinks& m_links;
    QListWidget* m_list = nullptr;
};
