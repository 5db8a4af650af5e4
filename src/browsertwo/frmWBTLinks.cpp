#include "frmWBTLinks.h"

#include "WbtLinks.h"
#include "browserone/frmWBOLinks.h"
#include "core/ControlBinder.h"
#include "core/WindowPlace.h"

#include <QCloseEvent>
#include <QListWidget>
#include <QVBoxLayout>

frmWBTLinks::frmWBTLinks(WbtLinks& links, QWidget* parent)
    : QWidget(parent, Qt::Tool), m_links(links)
{
    setObjectName(QStringLiteral("frmWBTLinks"));
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    ControlBinder::bindCaption(links.linksCaption, this);
    setMinimumSize(twipsToPixels(WindowPlace::MinWidth), twipsToPixels(WindowPlace::MinHeight));
    resize(minimumSize());
    m_list = new QListWidget(this);
    ControlBinder::bind(links.lstWBTLinks, m_list);
    m_list->setAccessibleName(tr("Saved links"));
    connect(m_list, &QListWidget::itemDoubleClicked, this, [this] { m_links.ListDoubleClick(); });
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_list);
    frmWBOLinks::keepOnScreen(this);
}

void frmWBTLinks::closeEvent(QCloseEvent* event)
{
    m_links.LinksQueryUnload();
    QWidget::closeEvent(event);
}
