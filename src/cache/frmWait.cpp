#include "frmWait.h"

#include "core/SharedState.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>
#include <QVBoxLayout>

frmWait::frmWait(SharedState& state)
    : QWidget(nullptr,
              Qt::Tool | Qt::WindowStaysOnTopHint | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      m_state(state)
{
    setObjectName(QStringLiteral("frmWait"));
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowTitle(QStringLiteral("Vorlan"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 16, 24, 16);
    lblWait = new QLabel(QStringLiteral("Loading...."), this);
    lblWait->setObjectName(QStringLiteral("lblWait"));
    lblWait->setAlignment(Qt::AlignCenter);
    QFont big = lblWait->font();
    big.setPointSize(big.pointSize() + 4);
    lblWait->setFont(big);
    layout->addWidget(lblWait);
    setFixedSize(sizeHint().expandedTo(QSize(220, 80)));
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        const QRect area = screen->availableGeometry();
        move(area.left() + (area.width() - width()) / 2,
             area.top() + (area.height() - height()) / 2);
    }
}

frmWait::~frmWait()
{
    m_state.gblnStartUpShown = false;
}

void frmWait::Load()
{
    show();
    raise();
    while (!m_state.gblnStartUpShown)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    QCoreApplication::processEvents();
}

void frmWait::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_state.gblnStartUpShown = true;
}
