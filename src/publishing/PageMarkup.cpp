#include "PageMarkup.h"

#include "core/Endpoints.h"
#include "core/SingleByteText.h"

namespace {

const QString CrLf = QStringLiteral("\r\n");

bool singleByte(char32_t c)
{
    if (c > 0xFFFF)
        return false;
    const QString one{QChar(char16_t(c))};
    return c == U'?' || SingleByteText::encode(one) != "?";
}

// Each character of text through escape, which returns the empty text for
// one that stays as it is; CR LF, CR and LF become one blank.
template <typename Escape> QString mapped(const QString& text, Escape escape)
{
    QString plain = text;
    plain.replace(CrLf, QStringLiteral(" "));
    plain.replace(QLatin1Char('\r'), QLatin1Char(' ')).replace(QLatin1Char('\n'), QLatin1Char(' '));
    QString out;
    for (char32_t c : plain.toUcs4()) {
        const QString replacement = escape(c);
        out += replacement.isEmpty() ? QString::fromUcs4(&c, 1) : replacement;
    }
    return out;
}

} // namespace

QString PageMarkup::lines(const QStringList& texts)
{
    return texts.join(CrLf) + CrLf;
}

QString PageMarkup::lineBreak()
{
    return CrLf + CrLf;
}

QString PageMarkup::head()
{
    return lines({
        "<HTML>",
        "  <HEAD>",
        "    <TITLE></TITLE>",
        "    <META ",
        "         NAME = \"DESCRIPTION\"",
        "         CONTENT = \"\">",
        "    <META ",
        "         NAME = \"KEYWORDS\"",
        "         CONTENT = \"\">",
        "    <META ",
        "         NAME = \"RATING\"",
        "         CONTENT = \"\">",
        "    <STYLE TYPE=\"TEXT/CSS\">",
        "      <!--",
        "      A{TEXT-DECORATION: NONE;} A:LINK{COLOR: #5900DF;} A:VISITED{COLOR: #FFA000;} "
        "A:HOVER{ COLOR:#FF0000; TEXT-DECORATION: UNDERLINE }",
        "      -->",
        "    </STYLE>",
    });
}

// The blank missing behind "COLOR =" is the program's own.
QString PageMarkup::defaultBodyFont()
{
    return QStringLiteral("FACE = \"MS SERIF\" SIZE = \"4\" COLOR =\"0\" ");
}

// The size is the point size divided by 4: a 10-point font gives "2.5".
QString PageMarkup::bodyFont(const QString& name, double pointSize, int color)
{
    return QStringLiteral("FACE = \"%1\" SIZE = \"%2\" COLOR = \"%3\" ")
        .arg(html(name), QString::number(pointSize / 4.0), QString::number(color));
}

QString PageMarkup::quoted(const QString& text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QStringList PageMarkup::editNote()
{
    return {"<BR>You will need to edit this file deleting",
            "<BR>what you don't need and adding what you do.",
            "<BR>Script is prewritten for your convenience!</CENTER><P>"};
}

QStringList PageMarkup::formStart(const QString& name)
{
    return {"      <FORM ", "          NAME = " + quoted(name), "          METHOD = \"POST\"",
            "          ACTION = " + quoted(Endpoint::FormMailTarget) + ">"};
}

QStringList PageMarkup::formEnd(const QString& indent, const QString& bodyEnd)
{
    return {indent + "<INPUT ",
            indent + "    TYPE = \"SUBMIT\"",
            indent + "    NAME = \"B1\"",
            indent + "    VALUE = \"SUBMIT\">",
            "      </FORM><P><P>",
            bodyEnd,
            "</HTML>"};
}

void PageMarkup::AddEmptySub(QString& script, const QString& name)
{
    script += lines({"     SUB " + name + "()", "", "     END SUB"});
}

QString PageMarkup::html(const QString& text)
{
    return mapped(text, [](char32_t c) -> QString {
        switch (c) {
        case U'&':
            return QStringLiteral("&amp;");
        case U'<':
            return QStringLiteral("&lt;");
        case U'>':
            return QStringLiteral("&gt;");
        case U'"':
            return QStringLiteral("&quot;");
        default:
            return singleByte(c) ? QString() : QStringLiteral("&#%1;").arg(uint(c));
        }
    });
}

QString PageMarkup::vbString(const QString& text)
{
    return mapped(text, [](char32_t c) -> QString {
        if (c == U'"')
            return QStringLiteral("\"\"");
        if (singleByte(c))
            return QString();
        QString pieces;
        for (QChar unit : QString::fromUcs4(&c, 1)) // a pair of halves past 0xFFFF
            pieces += QStringLiteral("\" & ChrW(%1) & \"").arg(unit.unicode());
        return pieces;
    });
}
