#pragma once

#include <QPointer>
#include <QWidget>

class LinksPanel;
class QListWidget;
class SavedLinks;

// The saved-links panel: a small tool window beside Browser One with the
// notes of the region's saved links. Its rules live in LinksPanel, its
// list and caption in SavedLinks.
class frmWBOLinks : public QWidget
{
    Q_OBJECT
public:
    frmWBOLinks(SavedLinks& links, LinksPanel& rules, QWidget* parent);

    QListWidget* lstLinks() const { return m_list; }
    // Moves a links window that lies partly off the screen back onto it.
    static void keepOnScreen(QWidget* window);

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void noteNormalPlace();
    void leaveMaximised();

    QPointer<LinksPanel> m_rules;
    QListWidget* m_list = nullptr;
    // The frame's left and top and the list's size while the panel was
    // last neither maximised nor minimised.
    QRect m_normalPlace;
};
