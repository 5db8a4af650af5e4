#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QByteArrayView>

// The text rules of the cache actions, on the single-byte bytes of a file:
// what the classic runtime's Line Input, Trim, LCase, UCase, InStr and
// Replace did with them.
namespace CacheText {

// Calls line(view) for each line as Line Input reads them: a line ends at
// CR, or at CR LF; a lone LF is a character of the line. A text that ends
// with its line end has no empty line after it. Returns false as soon as
// line does, true at the end.
template <typename Line> bool forEachLine(QByteArrayView text, Line line)
{
    qsizetype start = 0;
    const qsizetype size = text.size();
    while (start < size) {
        const qsizetype cr = text.indexOf('\r', start);
        const qsizetype end = cr < 0 ? size : cr;
        if (!line(text.sliced(start, end - start)))
            return false;
        start = end + 1;
        if (cr >= 0 && start < size && text[start] == '\n')
            ++start;
    }
    return true;
}

// Without the blanks at both ends; tabs and other characters stay.
QByteArrayView trimmed(QByteArrayView text);

// Windows-1252 case of every byte.
char lowerByte(char c);
void toLower(QByteArray& text);
void toUpper(QByteArray& text);

// InStr's answer: an empty text contains nothing, every other text the
// empty search.
bool contains(const QByteArray& text, const QByteArray& what);

// Every occurrence replaced, exactly and from the left; an empty search
// changes nothing.
QByteArray replaced(const QByteArray& text, const QByteArray& what, const QByteArray& with);

// Every LF preceded by a CR, also one that had a CR already.
QByteArray lfToCrLf(const QByteArray& text);

// The text's CRs and then its LFs taken out: the parts around each are
// joined directly when one of them has a blank at the join, else with one
// blank between. The search goes on one character after the taken one, so
// after a direct join the first character of the right part is passed over
// and a line end standing there stays.
QByteArray withoutLineBreaks(const QByteArray& text);

// "Html 2 code": the text prepared for its lines (LF CR and LF each become
// CR LF, a double quote becomes the code that writes one), then each line
// trimmed and, unless empty, written between prefix and a double quote.
QByteArrayList htmlToCodeLines(const QByteArray& text, const QByteArray& prefix);

// "Html 2 text" before its walk: every LF doubled, "&nbsp;" made a blank,
// and every LF LF made CR LF.
QByteArray htmlToTextPrepared(const QByteArray& text);

// The characters outside tags appended to out; a "<" opens a tag and a ">"
// closes it, neither kept. inTag carries over from one call to the next.
void stripTags(QByteArrayView text, bool& inTag, QByteArray& out);

// The lines of text trimmed, the empty ones left out.
QByteArrayList nonBlankLines(QByteArrayView text);

} // namespace CacheText
