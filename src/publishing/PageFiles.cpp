#include "PageFiles.h"

#include "core/SingleByteText.h"

#include <QFile>
#include <QSaveFile>
#include <memory>
#include <vector>

namespace {

QString fault(const QString& path, const QString& reason)
{
    return QStringLiteral("The page could not be written to %1.\n%2").arg(path, reason);
}

} // namespace

QString PageFiles::write(const QList<File>& files)
{
    std::vector<std::unique_ptr<QSaveFile>> open;
    for (const File& file : files) {
        auto out = std::make_unique<QSaveFile>(file.path);
        const QByteArray bytes = SingleByteText::encode(file.text);
        if (!out->open(QIODevice::WriteOnly) || out->write(bytes) != bytes.size())
            return fault(file.path, out->errorString()); // the open ones are dropped unseen
        open.push_back(std::move(out));
    }
    for (size_t i = 0; i < open.size(); ++i) {
        if (!open[i]->commit()) {
            const QString reason = fault(files[int(i)].path, open[i]->errorString());
            for (size_t done = 0; done < i; ++done)
                QFile::remove(files[int(done)].path);
            return reason;
        }
    }
    return QString();
}
