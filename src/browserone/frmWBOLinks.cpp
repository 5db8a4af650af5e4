#include "frmWBOLinks.h"

#include "LinksPanel.h"
#include "core/ControlBinder.h"
#include "core/PlaceWindow.h"
#include "core/WindowPlace.h"
#include "navigator/SavedLinks.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QListWidget>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

frmWBOLinks::frmWBOLinks(SavedLinks& links, LinksPanel& rules, QWidget* parent)
    : QWidget(parent, Qt::Tool), m_rules(&rules)
{
    setObjectName(QStringLiteral("frmWBOLinks"));
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    ControlBinder::bindCaption(links.panelCaption, this);
    // The list fills the window, which is never smaller than 5000 by 3300.
    setMinimumSize(twipsToPixels(WindowPlace::MinWidth), twipsToPixels(WindowPlace::MinHeight));
    resize(minimumSize());
    m_list = new QListWidget(this);
    ControlBinder::bind(links.lstLinks, m_list);
    m_list->setAccessibleName(tr("Saved links"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_list);
    keepOnScreen(this);
}

void frmWBOLinks::keepOnScreen(QWidget* window)
{
    const QRect screen = AvailableScreen();
    const QRect kept = LinksPanel::KeepOnScreen(
        PixelsToTwips(QRect(window->pos() - screen.topLeft(), window->size())),
        PixelsToTwips(QRect(QPoint(), screen.size())));
    window->move(screen.topLeft() + QPoint(twipsToPixels(kept.left()), twipsToPixels(kept.top())));
}

void frmWBOLinks::closeEvent(QCloseEvent* event)
{
    if (m_rules)
        m_rules->QueryUnload();
    QWidget::closeEvent(event);
}

void frmWBOLinks::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && (windowState() & Qt::WindowMaximized))
        QTimer::singleShot(0, this, &frmWBOLinks::leaveMaximised);
}

void frmWBOLinks::moveEvent(QMoveEvent* event)
{
    QWidget::moveEvent(event);
    noteNormalPlace();
}

void frmWBOLinks::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    noteNormalPlace();
}

// A window manager may hand out the maximised size before it tells the new
// state, in the same round of events: so a place counts as normal only if
// the panel is still in its normal state once that round is over.
void frmWBOLinks::noteNormalPlace()
{
    QTimer::singleShot(0, this, [this] {
        if (!(windowState() & (Qt::WindowMaximized | Qt::WindowMinimized | Qt::WindowFullScreen)))
            m_normalPlace = QRect(pos(), size());
    });
}

// Maximised, the panel takes the screen's height less room for the task
// bar, and keeps its left and width.
void frmWBOLinks::leaveMaximised()
{
    if (!(windowState() & Qt::WindowMaximized))
        return;
    setWindowState(windowState() & ~Qt::WindowMaximized);
    // The window system restores the normal size later: until then the
    // widget still has the maximised one, so the place comes from before.
    const QRect normal = m_normalPlace.isValid() ? m_normalPlace : QRect(pos(), minimumSize());
    const QRect screen = AvailableScreen();
    move(normal.left(), screen.top());
    resize(normal.width(), screen.height() - twipsToPixels(WindowPlace::TaskBarRoom));
}
