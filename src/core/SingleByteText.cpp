#include "SingleByteText.h"

namespace {

// 0x80 to 0x9F of Windows-1252; the five unassigned bytes stay as they are.
constexpr char16_t HighControls[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

} // namespace

QString SingleByteText::decode(const QByteArray& bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const auto b = static_cast<unsigned char>(bytes[i]);
        text[i] = (b >= 0x80 && b <= 0x9F) ? QChar(HighControls[b - 0x80]) : QChar(b);
    }
    return text;
}

QByteArray SingleByteText::encode(const QString& text)
{
    QByteArray bytes(text.size(), Qt::Uninitialized);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t c = text[i].unicode();
        char b = '?';
        if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
            b = static_cast<char>(c);
        for (int h = 0; h < 32 && b == '?' && c >= 0x80; ++h)
            if (HighControls[h] == c)
                b = static_cast<char>(0x80 + h);
        bytes[i] = b;
    }
    return bytes;
}

QByteArray SingleByteText::lines(const QStringList& texts)
{
    QByteArray bytes;
    for (const QString& text : texts)
        bytes += encode(text) + "\r\n";
    return bytes;
}
