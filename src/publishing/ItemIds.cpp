#include "ItemIds.h"

#include <QTime>

namespace {

QString digitsOf(const QString& text)
{
    QString digits;
    for (QChar c : text)
        if (c.isDigit())
            digits += c;
    return digits;
}

} // namespace

ItemIds::ItemIds(std::function<QString()> timeText) : m_timeText(std::move(timeText))
{
    if (!m_timeText)
        m_timeText = [] { return QTime::currentTime().toString(QStringLiteral("hh:mm:ss.zzz")); };
}

QString ItemIds::NewItemId()
{
    for (;;) {
        m_random.seed(digitsOf(m_timeText()).toUInt() ^ m_random.generate());
        // A single-precision number has seven significant digits, and shows
        // without the zero before its point.
        QString number = QString::number(m_random.generateDouble(), 'g', 7);
        if (number.startsWith(QLatin1String("0.")))
            number.remove(0, 1);
        const QString id = idFromNumber(number);
        if (!id.isEmpty())
            return id;
    }
}

QString ItemIds::idFromNumber(const QString& number)
{
    QString digits = digitsOf(number);
    if (digits.size() > 20)
        digits = digits.mid(4, 6);
    if (digits.size() > 6 && !digits.startsWith(QLatin1Char('0')))
        return digits.left(6);
    return QString();
}
