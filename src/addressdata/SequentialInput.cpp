#include "SequentialInput.h"

#include "core/SingleByteText.h"

#include <QStringDecoder>

namespace {

bool isLineEnd(QChar c)
{
    return c == QLatin1Char('\r') || c == QLatin1Char('\n');
}

bool isBlank(QChar c)
{
    return c == QLatin1Char(' ') || c == QLatin1Char('\t');
}

// The end of a field that starts at from: the next comma, line end or the
// end of the text.
int separatorAfter(const QString& text, int from)
{
    int end = from;
    while (end < text.size() && text.at(end) != QLatin1Char(',') && !isLineEnd(text.at(end)))
        ++end;
    return end;
}

// One field at at, which holds no separator; returns the index of the
// separator behind it, or -1 for a quote that is never closed.
int readField(const QString& text, int at, QString& field)
{
    if (text.at(at) != QLatin1Char('"')) {
        const int end = separatorAfter(text, at);
        field = text.mid(at, end - at).trimmed();
        return end;
    }
    const int close = text.indexOf(QLatin1Char('"'), at + 1);
    if (close < 0)
        return -1;
    field = text.mid(at + 1, close - at - 1);
    return separatorAfter(text, close + 1);
}

} // namespace

QString SequentialInput::decode(const QByteArray& bytes)
{
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8(bytes);
    if (!utf8.hasError())
        return text;
    return SingleByteText::decode(bytes);
}

bool SequentialInput::readFields(const QByteArray& bytes, QStringList& fields)
{
    fields.clear();
    if (bytes.contains('\0'))
        return false;
    const QString text = decode(bytes);
    bool afterComma = false; // a field is owed even when nothing follows
    int at = 0;
    for (;;) {
        while (at < text.size() && isBlank(text.at(at)))
            ++at;
        if (at == text.size() || isLineEnd(text.at(at))) {
            if (afterComma)
                fields.append(QString(""));
            afterComma = false;
            if (at == text.size())
                return true;
            ++at;
            continue;
        }
        QString field("");
        if (text.at(at) != QLatin1Char(',')) {
            at = readField(text, at, field);
            if (at < 0)
                return false;
        }
        fields.append(field);
        afterComma = at < text.size() && text.at(at) == QLatin1Char(',');
        if (afterComma)
            ++at;
    }
}
