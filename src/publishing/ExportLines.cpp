#include "ExportLines.h"

#include "core/PageHead.h"
#include "core/SingleByteText.h"

namespace {

constexpr int PadWidth = 60;

QString padded(const QString& text)
{
    return text.size() < PadWidth ? text.leftJustified(PadWidth, QLatin1Char(' ')) : text;
}

// A line break inside a field would end the record early: it becomes a
// blank, like the comment's commas. Beyond the saved links as the program
// has always written them.
QString oneLine(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String(" "));
    text.replace(QLatin1Char('\r'), QLatin1Char(' '));
    text.replace(QLatin1Char('\n'), QLatin1Char(' '));
    return text;
}

// A comma inside an address or a date would add a column. Addresses keep
// their meaning with the comma percent-encoded; a date loses it to a blank.
QString csvAddress(const QString& address)
{
    return oneLine(address).replace(QLatin1Char(','), QLatin1String("%2C"));
}

// Markup, quotes and ampersands in a saved text are shown as text rather
// than read as part of the page; a character that Windows-1252 lacks is
// kept as a character reference instead of turning into "?". The comment
// and address are otherwise written as they stand.
QString pageText(const QString& text)
{
    const QString escaped = text.toHtmlEscaped();
    QString out;
    out.reserve(escaped.size());
    for (qsizetype i = 0; i < escaped.size(); ++i) {
        const QChar c = escaped[i];
        const bool fits = c == QLatin1Char('?') || SingleByteText::encode(QString(c)) != "?";
        if (fits && !c.isSurrogate()) {
            out += c;
            continue;
        }
        char32_t code = c.unicode();
        if (c.isHighSurrogate() && i + 1 < escaped.size() && escaped[i + 1].isLowSurrogate())
            code = QChar::surrogateToUcs4(c, escaped[++i]);
        out += QStringLiteral("&#%1;").arg(uint(code));
    }
    return oneLine(out);
}

} // namespace

QByteArray ExportLines::textLine(const Row& row, bool withDate)
{
    const QString comment =
        padded(oneLine(row.comment).replace(QLatin1Char(','), QLatin1Char(' ')));
    if (!withDate)
        return SingleByteText::lines({comment + QLatin1Char(',') + csvAddress(row.address)});
    const QString date = oneLine(row.date).replace(QLatin1Char(','), QLatin1Char(' '));
    return SingleByteText::lines(
        {comment + QLatin1Char(',') + padded(csvAddress(row.address)) + QLatin1Char(',') + date});
}

QByteArray ExportLines::pageHeader()
{
    QStringList head = PageHeadLines(QStringLiteral("Vorlan Html Link Export"),
                                     QStringLiteral("Vorlan Link Export"),
                                     QStringLiteral("Links,Vorlan,GeoCities"));
    head << QStringLiteral(
        "<table border=\"1\" bordercolor=\"#000000\" cellspacing=\"0\" cellpadding=\"2\">");
    return SingleByteText::lines(head);
}

QByteArray ExportLines::pageRow(const Row& row, bool withDate)
{
    QStringList texts{QStringLiteral("<TR>"), QStringLiteral("<TD><A HREF=\"") +
                                                  pageText(row.address) + QStringLiteral("\">") +
                                                  pageText(row.comment) +
                                                  QStringLiteral("</A></TD>")};
    if (withDate) {
        const QString date = row.date.isEmpty() ? QStringLiteral("No date available") : row.date;
        texts.append(QStringLiteral("<TD>") + pageText(date) + QStringLiteral("</TD>"));
    }
    texts.append(QStringLiteral("</TR>"));
    return SingleByteText::lines(texts);
}

QByteArray ExportLines::japanHeading()
{
    return SingleByteText::lines({QStringLiteral("<TR>"),
                                  QStringLiteral("<TD><B>GeoCities Japan Links</B></TD>"),
                                  QStringLiteral("<TD>* * * * *</TD>"), QStringLiteral("</TR>")});
}

QByteArray ExportLines::pageFooter()
{
    return SingleByteText::lines(
        {QStringLiteral("</table>"), QStringLiteral("</BODY>"), QStringLiteral("</HTML>")});
}
