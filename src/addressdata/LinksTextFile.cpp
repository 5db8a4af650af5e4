#include "LinksTextFile.h"

#include "SequentialInput.h"

#include <QFile>

bool LinksTextFile::read(const QString& path, QVector<QStringList>& result, bool& oldLayout)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > MaxBytes)
        return false;
    const QByteArray bytes = file.readAll();
    QStringList fields;
    if (file.error() != QFile::NoError || !SequentialInput::readFields(bytes, fields))
        return false;
    for (int perRecord : {6, 5}) {
        if (fields.size() % perRecord == 0) {
            oldLayout = perRecord == 5;
            result = records(fields, perRecord);
            return true;
        }
    }
    return false;
}

QVector<QStringList> LinksTextFile::records(const QStringList& fields, int perRecord)
{
    QVector<QStringList> list;
    for (int at = 0; at < fields.size(); at += perRecord) {
        const QString date = perRecord == 6 ? fields.at(at + 5) : QString("");
        list.append({fields.at(at), fields.at(at + 1), fields.at(at + 2) + fields.at(at + 3),
                     fields.at(at + 4), date});
    }
    return list;
}
