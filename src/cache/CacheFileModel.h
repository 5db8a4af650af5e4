#pragma once

#include <QAbstractListModel>
#include <QStringList>

// The rows of lstCache: the listed files' full paths. A listing replaces
// them all at once, so that 20,000 files cost one reset of the view.
class CacheFileModel : public QAbstractListModel
{
    Q_OBJECT
public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    void setFiles(const QStringList& files);
    QString file(int row) const { return m_files.value(row); }

private:
    QStringList m_files;
};
