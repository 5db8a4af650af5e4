#include "frmTreeView.h"

#include "core/AppContext.h"
#include "core/PlaceWindow.h"
#include "core/WindowPlace.h"
#include "navigator/NeighborhoodPictures.h"

#include <QCloseEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {
// The tree's width at load, in twips; its height is the screen's.
constexpr int TreeWidth = 3300;

} // namespace

frmTreeView::frmTreeView(AppContext& ctx, MainWindowCalls& main,
                         std::function<QWidget*(GeoTreeHost::Browser)> browserWindow,
                         std::function<void()> showBrowserOne)
    : m_browserWindow(std::move(browserWindow)), m_showBrowserOne(std::move(showBrowserOne))
{
    setObjectName(QStringLiteral("frmTreeView"));
    setWindowTitle(tr("GeoTree"));
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_tree = new QTreeWidget(this);
    m_tree->setObjectName(QStringLiteral("tvwGeo"));
    m_tree->setAccessibleName(tr("GeoTree"));
    m_tree->header()->hide();
    m_tree->installEventFilter(this);
    layout->addWidget(m_tree);
    connect(m_tree, &QTreeWidget::itemClicked, this,
            [this](QTreeWidgetItem* item) { nodeClick(item); });

    m_rules = std::make_unique<GeoTree>(ctx, main, *this);
    placeAtLeftEdge();
    m_rules->Load();
    fillTree();
    m_tree->setIconSize(QSize(16, 16));
}

frmTreeView::~frmTreeView() = default;

void frmTreeView::placeAtLeftEdge()
{
    const QRect screen = AvailableScreen();
    move(screen.left(), screen.top());
    resize(twipsToPixels(TreeWidth), screen.height());
}

void frmTreeView::fillTree()
{
    const QVector<GeoTree::Node>& nodes = m_rules->nodes();
    const QIcon icon(NeighborhoodPictures::picture(false, 1));
    QVector<QTreeWidgetItem*> items(nodes.size(), nullptr);
    for (int i = 1; i < nodes.size(); ++i) {
        const GeoTree::Node& node = nodes[i];
        auto* item =
            node.parent ? new QTreeWidgetItem(items[node.parent]) : new QTreeWidgetItem(m_tree);
        item->setText(0, node.text);
        item->setData(0, Qt::UserRole, i);
        item->setData(0, Qt::UserRole + 1, node.key);
        item->setIcon(0, icon);
        items[i] = item;
    }
    if (items.size() > 1)
        items[1]->setExpanded(true);
}

void frmTreeView::nodeClick(QTreeWidgetItem* item)
{
    if (item)
        m_rules->NodeClick(item->data(0, Qt::UserRole).toInt(), item->text(0));
}

// Return on a node is the keyboard's click.
bool frmTreeView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_tree && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            nodeClick(m_tree->currentItem());
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void frmTreeView::closeEvent(QCloseEvent* event)
{
    m_rules->Unload();
    emit unloaded();
    event->accept();
}

QRect frmTreeView::screenTwips() const
{
    return PixelsToTwips(QRect(QPoint(0, 0), AvailableScreen().size()));
}

QRect frmTreeView::treeTwips() const
{
    return PixelsToTwips(frameGeometry());
}

bool frmTreeView::treeMinimised() const
{
    return isMinimized();
}

bool frmTreeView::browserOpen(Browser which) const
{
    return m_browserWindow(which) != nullptr;
}

QRect frmTreeView::browserTwips(Browser which) const
{
    const QWidget* w = m_browserWindow(which);
    return w ? PixelsToTwips(QRect(w->pos(), w->size())) : QRect();
}

bool frmTreeView::browserMaximised(Browser which) const
{
    const QWidget* w = m_browserWindow(which);
    return w && w->isMaximized();
}

void frmTreeView::placeBrowser(Browser which, const QRect& place)
{
    QWidget* w = m_browserWindow(which);
    if (!w)
        return;
    w->setWindowState(w->windowState() & ~(Qt::WindowMaximized | Qt::WindowMinimized));
    w->move(twipsToPixels(place.x()), twipsToPixels(place.y()));
    w->resize(twipsToPixels(place.width()), twipsToPixels(place.height()));
}

void frmTreeView::showBrowserOne()
{
    m_showBrowserOne();
}
