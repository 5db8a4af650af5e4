#include "CacheText.h"

#include "core/SingleByteText.h"

#include <array>

namespace {

using Table = std::array<char, 256>;

// A byte's case changed as Windows-1252 text; a letter whose other case the
// code page lacks stays as it is.
Table caseTable(bool upper)
{
    Table table{};
    for (int b = 0; b < 256; ++b) {
        const QByteArray one(1, char(b));
        const QString text = SingleByteText::decode(one);
        const QString changed = upper ? text.toUpper() : text.toLower();
        const QByteArray back = changed.size() == 1 ? SingleByteText::encode(changed) : one;
        table[size_t(b)] = (back == "?" && b != '?') ? char(b) : back[0];
    }
    return table;
}

void apply(const Table& table, QByteArray& text)
{
    char* at = text.data();
    for (qsizetype i = 0, n = text.size(); i < n; ++i)
        at[i] = table[static_cast<unsigned char>(at[i])];
}

QByteArray removeEach(const QByteArray& text, char mark)
{
    QByteArray out;
    out.reserve(text.size() + text.size() / 16);
    qsizetype from = 0;
    const qsizetype size = text.size();
    for (;;) {
        const qsizetype at = text.indexOf(mark, from);
        if (at < 0) {
            out.append(text.constData() + from, size - from);
            return out;
        }
        out.append(text.constData() + from, at - from);
        const bool rightBlank = at + 1 < size && text[at + 1] == ' ';
        if (out.endsWith(' ') || rightBlank) {
            from = at + 1;
            if (from < size)
                out.append(text[from++]);
        } else {
            out.append(' ');
            from = at + 1;
        }
    }
}

const Table& lowerTable()
{
    static const Table table = caseTable(false);
    return table;
}

} // namespace

QByteArrayView CacheText::trimmed(QByteArrayView text)
{
    qsizetype begin = 0;
    qsizetype end = text.size();
    while (begin < end && text[begin] == ' ')
        ++begin;
    while (end > begin && text[end - 1] == ' ')
        --end;
    return text.sliced(begin, end - begin);
}

char CacheText::lowerByte(char c)
{
    return lowerTable()[static_cast<unsigned char>(c)];
}

void CacheText::toLower(QByteArray& text)
{
    apply(lowerTable(), text);
}

void CacheText::toUpper(QByteArray& text)
{
    static const Table table = caseTable(true);
    apply(table, text);
}

bool CacheText::contains(const QByteArray& text, const QByteArray& what)
{
    return !text.isEmpty() && (what.isEmpty() || text.contains(what));
}

QByteArray CacheText::replaced(const QByteArray& text, const QByteArray& what,
                               const QByteArray& with)
{
    if (what.isEmpty())
        return text;
    QByteArray out = text;
    return out.replace(what, with);
}

QByteArray CacheText::lfToCrLf(const QByteArray& text)
{
    QByteArray out = text;
    return out.replace("\n", "\r\n");
}

QByteArray CacheText::withoutLineBreaks(const QByteArray& text)
{
    return removeEach(removeEach(text, '\r'), '\n');
}

QByteArrayList CacheText::nonBlankLines(QByteArrayView text)
{
    QByteArrayList lines;
    forEachLine(text, [&](QByteArrayView line) {
        const QByteArrayView kept = trimmed(line);
        if (!kept.isEmpty())
            lines.append(kept.toByteArray());
        return true;
    });
    return lines;
}

QByteArrayList CacheText::htmlToCodeLines(const QByteArray& text, const QByteArray& prefix)
{
    QByteArray prepared = lfToCrLf(QByteArray(text).replace("\n\r", "\r\n"));
    prepared.replace("\"", "\" + Chr$(34) + \"");
    QByteArrayList lines = nonBlankLines(prepared);
    for (QByteArray& line : lines)
        line = prefix + line + '"';
    return lines;
}

QByteArray CacheText::htmlToTextPrepared(const QByteArray& text)
{
    QByteArray prepared = QByteArray(text).replace("\n", "\n\n");
    prepared.replace("&nbsp;", " ");
    return prepared.replace("\n\n", "\r\n");
}

void CacheText::stripTags(QByteArrayView text, bool& inTag, QByteArray& out)
{
    for (const char c : text) {
        if (c == '<')
            inTag = true;
        if (!inTag)
            out += c;
        if (c == '>')
            inTag = false;
    }
}
