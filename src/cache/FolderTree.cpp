#include "FolderTree.h"

#include "core/Controls.h"

#include <QFileInfo>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QSignalBlocker>
#include <QTimer>

FolderTree::FolderTree(QWidget* parent) : QTreeView(parent), m_model(new QFileSystemModel(this))
{
    m_model->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System);
    m_model->setReadOnly(true);
    m_model->setRootPath(QStringLiteral("/"));
    setModel(m_model);
    for (int column = 1; column < m_model->columnCount(); ++column)
        hideColumn(column);
    header()->hide();
    header()->setAccessibleName(tr("Folders"));
    setUniformRowHeights(true);
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) {
                if (current.isValid()) {
                    m_pending.clear();
                    emit pathChosen(path());
                }
            });
    // Once the pending folder's own branch is read it stands in place, and
    // folders the user opens later leave the view where it is.
    // The model sorts what it has read a moment later, which moves the rows.
    connect(m_model, &QAbstractItemModel::layoutChanged, this, [this] {
        if (m_follow)
            scrollToCurrent();
    });
    connect(m_model, &QFileSystemModel::directoryLoaded, this, [this](const QString& folder) {
        if (m_pending.isEmpty())
            return;
        showPending();
        if (folder == m_pending || folder == QFileInfo(m_pending).absolutePath())
            m_pending.clear();
    });
}

QString FolderTree::path() const
{
    return m_model->filePath(currentIndex());
}

void FolderTree::setPath(const QString& path)
{
    m_pending = path.isEmpty() ? QStringLiteral("/") : path;
    m_follow = true;
    showPending();
}

void FolderTree::showPending()
{
    const QModelIndex index = m_model->index(m_pending);
    if (!index.isValid())
        return;
    for (QModelIndex branch = index.parent(); branch.isValid(); branch = branch.parent())
        expand(branch);
    if (index != currentIndex()) {
        const QSignalBlocker block(selectionModel());
        setCurrentIndex(index);
    }
    scrollToCurrent();
}

void FolderTree::scrollToCurrent()
{
    // The view lays out the opened branches first, and a hidden view has no
    // height to scroll in: scroll once it has laid out.
    QTimer::singleShot(0, this, [this] {
        if (currentIndex().isValid())
            scrollTo(currentIndex(), PositionAtCenter);
    });
}

void FolderTree::showEvent(QShowEvent* event)
{
    QTreeView::showEvent(event);
    scrollToCurrent();
}

void FolderTree::mousePressEvent(QMouseEvent* event)
{
    m_follow = false;
    QTreeView::mousePressEvent(event);
}

void FolderTree::wheelEvent(QWheelEvent* event)
{
    m_follow = false;
    QTreeView::wheelEvent(event);
}

void FolderTree::keyPressEvent(QKeyEvent* event)
{
    m_follow = false;
    QTreeView::keyPressEvent(event);
}

void FolderTree::bind(Control& model)
{
    setObjectName(model.name());
    auto show = [&model, this] {
        if (path() != model.text())
            setPath(model.text());
        setToolTip(model.toolTip());
        setEnabled(model.isEnabled());
    };
    show();
    connect(&model, &Control::viewChanged, this, show);
    connect(this, &FolderTree::pathChosen, &model,
            [&model](const QString& path) { model.setText(path); });
}
