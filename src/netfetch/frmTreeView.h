#pragma once

#include "GeoTree.h"
#include "GeoTreeHost.h"

#include <QWidget>
#include <functional>
#include <memory>

class QTreeWidget;
class QTreeWidgetItem;

// GeoTree: the service's Neighborhoods and Suburbs as a tree at the
// screen's left edge, with the browsers kept to its right. Its rules live
// in GeoTree.
class frmTreeView : public QWidget, public GeoTreeHost
{
    Q_OBJECT
public:
    // browserWindow gives a browser's window while it is open, else null.
    frmTreeView(AppContext& ctx, MainWindowCalls& main,
                std::function<QWidget*(GeoTreeHost::Browser)> browserWindow,
                std::function<void()> showBrowserOne);
    ~frmTreeView() override;

    GeoTree& rules() { return *m_rules; }
    QTreeWidget* tvwGeo() const { return m_tree; }

    // GeoTreeHost
    QRect screenTwips() const override;
    QRect treeTwips() const override;
    bool treeMinimised() const override;
    bool browserOpen(Browser which) const override;
    QRect browserTwips(Browser which) const override;
    bool browserMaximised(Browser which) const override;
    void placeBrowser(Browser which, const QRect& place) override;
    void showBrowserOne() override;

signals:
    void unloaded();

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void placeAtLeftEdge();
    void fillTree();
    void nodeClick(QTreeWidgetItem* item);

    std::function<QWidget*(GeoTreeHost::Browser)> m_browserWindow;
    std::function<void()> m_showBrowserOne;
    QTreeWidget* m_tree = nullptr;
    std::unique_ptr<GeoTree> m_rules;
};
