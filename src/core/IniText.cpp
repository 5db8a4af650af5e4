#include "IniText.h"

#include "SingleByteText.h"

#include <QStringDecoder>

namespace {

const char HexDigits[] = "0123456789ABCDEF";

bool isHexDigit(QChar c)
{
    const char16_t u = c.unicode();
    return (u >= '0' && u <= '9') || (u >= 'a' && u <= 'f') || (u >= 'A' && u <= 'F');
}

// Reads up to maxDigits digits of base from text at i, moving i past them.
char16_t number(const QString& text, qsizetype& i, int maxDigits, int base)
{
    qsizetype end = i;
    while (end < text.size() && end - i < maxDigits &&
           (base == 16 ? isHexDigit(text[end])
                       : (text[end] >= QLatin1Char('0') && text[end] <= QLatin1Char('7'))))
        ++end;
    const char16_t value = static_cast<char16_t>(text.mid(i, end - i).toUInt(nullptr, base));
    i = end;
    return value;
}

// "\\" is a "/" in a name; "%XX" and "%UXXXX" are characters.
QString unescapedName(const QString& text)
{
    QString name;
    for (qsizetype i = 0; i < text.size();) {
        const QChar c = text[i];
        if (c == QLatin1Char('\\')) {
            name += QLatin1Char('/');
            ++i;
            continue;
        }
        const bool wide = c == QLatin1Char('%') && text.mid(i + 1, 1) == QLatin1String("U");
        const int digits = wide ? 4 : 2;
        const qsizetype first = i + (wide ? 2 : 1);
        if (c == QLatin1Char('%') && first + digits <= text.size()) {
            qsizetype at = first;
            const char16_t value = number(text, at, digits, 16);
            if (at == first + digits) {
                name += QChar(value);
                i = at;
                continue;
            }
        }
        name += c;
        ++i;
    }
    return name;
}

QChar escaped(QChar code)
{
    switch (code.unicode()) {
    case 'a':
        return QChar(u'\a');
    case 'b':
        return QChar(u'\b');
    case 'f':
        return QChar(u'\f');
    case 'n':
        return QChar(u'\n');
    case 'r':
        return QChar(u'\r');
    case 't':
        return QChar(u'\t');
    case 'v':
        return QChar(u'\v');
    default:
        return code; // '"', '\'', '\\', '?'
    }
}

// Quotes group text and keep its blanks; backslash escapes as QSettings
// writes them. A backslash before any other letter stays, as in a path
// typed by hand.
QString unescapedValue(const QString& raw)
{
    const QString text = raw.trimmed();
    QString value;
    for (qsizetype i = 0; i < text.size();) {
        const QChar c = text[i++];
        if (c == QLatin1Char('"'))
            continue;
        if (c != QLatin1Char('\\') || i == text.size()) {
            value += c;
            continue;
        }
        const QChar code = text[i];
        if (code == QLatin1Char('x') && i + 1 < text.size() && isHexDigit(text[i + 1])) {
            ++i;
            value += QChar(number(text, i, 4, 16));
        } else if (code >= QLatin1Char('0') && code <= QLatin1Char('7')) {
            value += QChar(number(text, i, 3, 8));
        } else if (QStringLiteral("abfnrtv\"'\\?").contains(code)) {
            value += escaped(code);
            ++i;
        } else {
            value += c;
        }
    }
    // A leading "@" is doubled, since "@" starts QSettings' typed values.
    if (value.startsWith(QLatin1String("@@")))
        value.remove(0, 1);
    return value;
}

void appendName(QByteArray& out, const QString& name)
{
    for (const QChar c : name) {
        const char16_t u = c.unicode();
        if (u == '/') {
            out += '\\';
        } else if ((u >= 'a' && u <= 'z') || (u >= 'A' && u <= 'Z') || (u >= '0' && u <= '9') ||
                   u == '_' || u == '-' || u == '.') {
            out += static_cast<char>(u);
        } else if (u <= 0xFF) {
            out += '%';
            out += HexDigits[u / 16];
            out += HexDigits[u % 16];
        } else {
            out += "%U";
            for (int shift = 12; shift >= 0; shift -= 4)
                out += HexDigits[(u >> shift) & 0xF];
        }
    }
}

void appendValue(QByteArray& out, const QString& text)
{
    QByteArray value = text.startsWith(QLatin1Char('@')) ? QByteArray("@") : QByteArray();
    bool needsQuotes = text.startsWith(QLatin1Char(' ')) || text.endsWith(QLatin1Char(' '));
    bool escapeDigit = false; // a hex digit right after a \x escape would join it
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const char16_t u = c.unicode();
        needsQuotes = needsQuotes || u == ';' || u == ',' || u == '=';
        const int named = QByteArrayView("\a\b\f\n\r\t\v\"\\").indexOf(static_cast<char>(u));
        if (u < 0x80 && named >= 0 && u != 0) {
            value += '\\';
            value += "abfnrtv\"\\"[named];
            escapeDigit = false;
        } else if (u < 0x20 || (escapeDigit && isHexDigit(c))) {
            value += "\\x";
            for (int shift = 12; shift >= 0; shift -= 4)
                value += HexDigits[(u >> shift) & 0xF];
            escapeDigit = true;
        } else {
            const bool pair = c.isHighSurrogate() && i + 1 < text.size();
            value += text.mid(i, pair ? 2 : 1).toUtf8();
            i += pair ? 1 : 0;
            escapeDigit = false;
        }
    }
    out += needsQuotes ? '"' + value + '"' : value;
}

} // namespace

bool IniText::read(const QByteArray& bytes, QSettings::SettingsMap& map)
{
    if (bytes.contains('\0'))
        return false;
    QStringDecoder utf8(QStringDecoder::Utf8);
    QString text = utf8.decode(bytes);
    if (utf8.hasError())
        text = SingleByteText::decode(bytes);

    QString section;
    for (const QString& raw : text.split(QLatin1Char('\n'))) {
        const QString line = raw.trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char(';')) ||
            line.startsWith(QLatin1Char('#')))
            continue;
        if (line.startsWith(QLatin1Char('['))) {
            if (!line.endsWith(QLatin1Char(']')))
                return false;
            section = unescapedName(line.mid(1, line.size() - 2).trimmed()).toLower();
            if (section == QLatin1String("general"))
                section.clear();
            continue;
        }
        const qsizetype equals = line.indexOf(QLatin1Char('='));
        if (equals < 0)
            return false;
        const QString key = unescapedName(line.left(equals).trimmed()).toLower();
        if (key.isEmpty())
            continue;
        map.insert(section.isEmpty() ? key : section + QLatin1Char('/') + key,
                   unescapedValue(line.mid(equals + 1)));
    }
    return true;
}

QByteArray IniText::write(const QSettings::SettingsMap& map)
{
    QByteArray out;
    QString current;
    bool first = true;
    for (auto it = map.cbegin(); it != map.cend(); ++it) {
        const qsizetype slash = it.key().indexOf(QLatin1Char('/'));
        const QString section = slash < 0 ? QStringLiteral("General") : it.key().left(slash);
        if (first || section != current) {
            if (!first)
                out += '\n';
            out += '[';
            appendName(out, section);
            out += "]\n";
            current = section;
            first = false;
        }
        appendName(out, it.key().mid(slash + 1));
        out += '=';
        appendValue(out, it.value().toString());
        out += '\n';
    }
    return out;
}
