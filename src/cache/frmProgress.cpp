#include "frmProgress.h"

#include "CacheProgressOverflow.h"
#include "core/PlaceWindow.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

frmProgress::frmProgress()
    : QWidget(nullptr,
              Qt::Tool | Qt::WindowStaysOnTopHint | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
{
    setObjectName(QStringLiteral("frmProgress"));
    setWindowTitle(QStringLiteral("Progress Report"));
    setAttribute(Qt::WA_QuitOnClose, false);
    setAttribute(Qt::WA_ShowWithoutActivating);
    auto* layout = new QVBoxLayout(this);
    auto* bar = new QHBoxLayout;
    bar->setSpacing(0);
    for (int i = 0; i <= LastLabel; ++i) {
        auto* cell = new QLabel(this);
        cell->setObjectName(QStringLiteral("lblProgress[%1]").arg(i));
        cell->setFixedSize(3, 16);
        cell->setAutoFillBackground(true);
        cell->setBackgroundRole(QPalette::Highlight);
        // A hidden cell keeps its room, so that the bar grows from the left.
        QSizePolicy keep = cell->sizePolicy();
        keep.setRetainSizeWhenHidden(true);
        cell->setSizePolicy(keep);
        cell->hide();
        bar->addWidget(cell);
        lblProgress.append(cell);
    }
    layout->addLayout(bar);
    lblPercent = new QLabel(this);
    lblPercent->setObjectName(QStringLiteral("lblPercent"));
    lblPercent->setAlignment(Qt::AlignCenter);
    layout->addWidget(lblPercent);
    adjustSize();
    const QRect area = AvailableScreen();
    move(area.center() - rect().center());
}

void frmProgress::Increm(int percent)
{
    if (!isVisible())
        show();
    for (; m_count <= percent; ++m_count) {
        if (m_count > LastLabel)
            throw CacheProgressOverflow(); // the counter stays past the bar

        lblProgress[m_count]->show();
        lblPercent->setText(QString::number(m_count) + '%');
    }
    m_count = percent + 1;
}
