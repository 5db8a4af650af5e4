#include "TextWordFile.h"

#include "WordRule.h"
#include "addressdata/SequentialInput.h"

#include <QCoreApplication>
#include <QFile>

namespace {

constexpr qint64 Chunk = 1 << 20;
// An item still open at this size is far past any word: the reading ends
// there rather than gather the rest of a huge file.
constexpr int MaxPending = 4 << 20;

// The length of the part that ends at the last separator, 0 if none.
int partEnd(const QByteArray& bytes)
{
    for (int i = bytes.size() - 1; i >= 0; --i) {
        const char c = bytes.at(i);
        if (c == ',' || c == '\n' || c == '\r')
            return i + 1;
    }
    return 0;
}

// The items of a part; a quote left open at its end runs to the end of
// the file, as a sequential read takes it.
QStringList itemsOf(QByteArray part, bool& open)
{
    QStringList items;
    open = !SequentialInput::readFields(part, items);
    if (open) {
        part.append('"');
        SequentialInput::readFields(part, items);
    }
    return items;
}

} // namespace

int TextWordFile::read(const QString& path, QVector<QString>& sites, QString& error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error = file.errorString();
        return 0;
    }
    int count = 0;
    QByteArray pending;
    bool atEnd = false;
    while (!atEnd) {
        const QByteArray more = file.read(Chunk);
        if (file.error() != QFile::NoError) {
            error = file.errorString();
            return count;
        }
        if (more.contains('\0')) {
            error = QStringLiteral("%1 is not a text file.").arg(path);
            return count;
        }
        pending += more;
        atEnd = more.isEmpty() || pending.size() > MaxPending;
        const int end = atEnd ? pending.size() : partEnd(pending);
        bool open = false;
        const QStringList items = itemsOf(pending.left(end), open);
        // A quoted item that goes on past this part is read again, whole,
        // with the next piece.
        if (open && !atEnd)
            continue;
        pending.remove(0, end);
        for (const QString& item : items) {
            const QString word = WordRule::fromTextFile(item);
            if (word.isEmpty())
                continue;
            if (++count == WordRule::StopCount)
                return count;
            sites.append(word);
        }
        // A long file keeps the window painted between its pieces.
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
    return count;
}
