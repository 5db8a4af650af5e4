#include "FolderTree.h"

#include "core/Controls.h"

#include <QFileSystemModel>
#include <QHeaderView>
#include <QSignalBlocker>

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
                if (current.isValid())
                    emit pathChosen(path());
            });
}

QString FolderTree::path() const
{
    return m_model->filePath(currentIndex());
}

void FolderTree::setPath(const QString& path)
{
    const QModelIndex index = m_model->index(path.isEmpty() ? QStringLiteral("/") : path);
    if (!index.isValid() || index == currentIndex())
        return;
    const QSignalBlocker block(selectionModel());
    setCurrentIndex(index);
    scrollTo(index);
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
