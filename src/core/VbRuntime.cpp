#include "VbRuntime.h"

#include <QRegularExpression>
#include <cmath>

VbError::VbError(int number, const QString& what)
    : std::runtime_error(what.toStdString()), m_number(number)
{
}

namespace Vb {

double Val(const QString& text)
{
    QString digits;
    for (QChar c : text) {
        if (c != QLatin1Char(' ') && c != QLatin1Char('\t') && c != QLatin1Char('\n') &&
            c != QLatin1Char('\r'))
            digits.append(c);
    }
    static const QRegularExpression leading(
        QStringLiteral("^[+-]?(\\d+\\.?\\d*|\\.\\d+)([eEdD][+-]?\\d+)?"));
    const auto m = leading.match(digits);
    if (!m.hasMatch())
        return 0.0;
    QString number = m.captured(0);
    number.replace(QLatin1Char('d'), QLatin1Char('e')).replace(QLatin1Char('D'), QLatin1Char('e'));
    return number.toDouble();
}

bool IsNumeric(const QString& text)
{
    static const QRegularExpression whole(
        QStringLiteral("^\\s*[+-]?(\\d+\\.?\\d*|\\.\\d+)([eE][+-]?\\d+)?\\s*$"));
    return whole.match(text).hasMatch();
}

static double numericValue(const QString& text)
{
    if (!IsNumeric(text))
        throw VbError(VbError::TypeMismatch, QStringLiteral("Type mismatch: \"%1\"").arg(text));
    return text.trimmed().toDouble();
}

static double roundHalfEven(double value)
{
    return std::nearbyint(value); // the default rounding mode is to nearest, ties to even
}

qint16 CInt(double value)
{
    const double r = roundHalfEven(value);
    if (!(r >= -32768.0 && r <= 32767.0))
        throw VbError(VbError::Overflow, QStringLiteral("Overflow: %1").arg(value));
    return static_cast<qint16>(r);
}

qint32 CLng(double value)
{
    const double r = roundHalfEven(value);
    if (!(r >= -2147483648.0 && r <= 2147483647.0))
        throw VbError(VbError::Overflow, QStringLiteral("Overflow: %1").arg(value));
    return static_cast<qint32>(r);
}

qint16 CInt(const QString& text)
{
    return CInt(numericValue(text));
}
qint32 CLng(const QString& text)
{
    return CLng(numericValue(text));
}

QString Str(double value)
{
    QString s = QString::number(value, 'g', 15);
    return value >= 0 ? QLatin1Char(' ') + s : s;
}

} // namespace Vb
