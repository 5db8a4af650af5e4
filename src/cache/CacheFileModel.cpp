#include "CacheFileModel.h"

int CacheFileModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_files.size();
}

QVariant CacheFileModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_files.size())
        return {};
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
        return m_files.at(index.row());
    return {};
}

void CacheFileModel::setFiles(const QStringList& files)
{
    beginResetModel();
    m_files = files;
    endResetModel();
}
