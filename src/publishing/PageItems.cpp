#include "PageItems.h"

#include "PageMarkup.h"
#include "core/Endpoints.h"

using PageMarkup::html;
using PageMarkup::lines;
using PageMarkup::quoted;

namespace {

const QString Br = QStringLiteral("<BR>\r\n");

// For each event: its empty routine in the script, and the line that names
// it in the tag.
QStringList eventLines(PageText& page, const QString& prefix, const QStringList& events)
{
    QStringList tagLines;
    for (const QString& event : events) {
        PageMarkup::AddEmptySub(page.strScript, prefix + event);
        tagLines << QStringLiteral("             ") + event + " = '" + prefix + event + "'";
    }
    return tagLines;
}

const QStringList AllEvents{"OnFocus", "OnBlur", "OnChange", "OnSelect"};

} // namespace

QString PageItems::inputBox(PageText& page, const QString& id, const PageInputs& in)
{
    const QString name = "InPutBox" + id;
    page.strScript += lines({
        "    " + name + " = INPUTBOX(\"" + PageMarkup::vbString(in.txtVBSText[0]) + "\")",
        "    IF  UCase(" + name + ")  = \"VORLAN\" THEN",
        "        Ask = MsgBox \"Visit the Vorlan Web Site?\",VbYesNo+VbQuestion,\"Example "
        "Message\"",
        "        If Ask = 6 Then",
        "            Location.Href = " + quoted(Endpoint::ProductHomeUrl),
        "        End If",
        "    Else",
        "        Alert \"Next time type Vorlan!\"",
        "    END IF",
    });
    return name;
}

QString PageItems::textBox(PageText& page, const QString& id, const PageInputs& in)
{
    const QString name = "TextBox" + id;
    const QString type = in.cboVBSSelect[8];
    QStringList tag{"         <INPUT LANGUAGE = \"VBScript\""};
    if (type == QLatin1String("TEXT")) // a password box has no routines
        tag << eventLines(page, name, AllEvents);
    tag << "             TYPE = " + quoted(html(type)) << "             NAME = " + quoted(name)
        << "             VALUE = " + quoted(html(in.txtVBSText[1]))
        << "             SIZE = " + quoted(html(in.cboVBSSelect[0]))
        << "             MAXLENGTH = " + quoted(html(in.cboVBSSelect[1])) + ">";
    page.strBody += lines(tag) + Br;
    return name;
}

QString PageItems::textArea(PageText& page, const QString& id, const PageInputs& in)
{
    const QString name = "TextArea" + id;
    QStringList tag{"         <TEXTAREA LANGUAGE = \"VBScript\""};
    tag << eventLines(page, name, AllEvents);
    tag << "             NAME = " + quoted(name)
        << "             ROWS = " + quoted(html(in.cboVBSSelect[2]))
        << "             COLS = " + quoted(html(in.cboVBSSelect[3])) + ">" << html(in.txtVBSText[2])
        << "         </TEXTAREA>";
    page.strBody += lines(tag) + Br;
    return name;
}

QString PageItems::commandButton(PageText& page, const QString& id, const PageInputs& in)
{
    const QString name = "CommandButton" + id;
    QStringList tag{"         <INPUT LANGUAGE = \"VBScript\""};
    tag << eventLines(page, name, {"OnClick"});
    tag << "             TYPE = \"BUTTON\""
        << "             NAME = " + quoted(name)
        << "             VALUE = " + quoted(html(in.txtVBSText[6])) + ">";
    page.strBody += lines(tag) + Br;
    return name;
}

// The frame's "<BR>" has no line end of its own.
void PageItems::floatingFrame(PageText& page, const QString& viewName)
{
    page.strBody += lines({
                        "      <IFRAME SRC = " + quoted(viewName),
                        "          WIDTH = \"100%\"",
                        "          HEIGHT = \"240\"",
                        "          SCROLLING = \"YES\"",
                        "          HSPACE = \"10\">",
                        "      </IFRAME>",
                    }) +
                    "<BR>";
}

// The view page has no closing tags.
QString PageItems::frameView(const PageText& page)
{
    const QString example = lines({
        "<BR><PRE>This is an Example View File!",
        "This floating frame site consists of two Html pages.",
        "1. index.htm (Contains only the FrameSet)",
        "2. view.htm  (Is displayed as the main document)",
        "",
        "To add graphics and other items to this site you",
        "need to edit the file which corresponds to the",
        "frame you want changed.",
        "",
        "For example: To add your text to the view window",
        "you would need to edit view.htm</PRE>",
    });
    return page.strHead + PageMarkup::lineBreak() + example.repeated(5);
}

QString PageItems::listItem(PageText& page, const QString& id, const PageInputs& in)
{
    page.intListItems += 1;
    const QString name = "LstOpt" + id;
    page.strListOptions += lines({
        "             <OPTION " + QString(page.intListItems == 1 ? "SELECTED" : ""),
        "                 NAME = " + quoted(name),
        "                 VALUE = \"\" > " + html(in.txtVBSText[3]),
        "             </OPTION>",
    });
    return name;
}

QString PageItems::listBox(PageText& page, const QString& id, const PageInputs& in)
{
    const QString name = "ListBox" + id;
    QStringList tag{"         <SELECT " + html(in.cboVBSSelect[6]) + "  LANGUAGE = \"VBScript\""};
    tag << eventLines(page, name, {"OnFocus", "OnBlur", "OnChange"});
    tag << "             NAME = " + quoted(name)
        << "             SIZE = " + quoted(html(in.cboVBSSelect[5])) + ">";
    page.strBody += lines(tag) + page.strListOptions + lines({"         </SELECT>"}) + Br;
    page.strListOptions.clear();
    page.intListItems = 0;
    return name;
}

QString PageItems::checkBox(PageText& page, const QString& id, const PageInputs& in)
{
    const QString name = "CheckBox" + id;
    QStringList tag{"         <INPUT " + html(in.cboVBSSelect[7]) + "  LANGUAGE = \"VBScript\""};
    tag << eventLines(page, name, {"OnClick"});
    tag << "             TYPE = \"CHECKBOX\""
        << "             NAME = " + quoted(name) + ">" + html(in.txtVBSText[4]);
    page.strBody += lines(tag) + Br;
    return name;
}

QString PageItems::radioButton(PageText& page, const QString& id, const QString& secondId,
                               const PageInputs& in)
{
    page.intRadioItems += 1;
    QString tagWord;
    if (page.intRadioItems == 1) {
        tagWord = QStringLiteral("CHECKED");
        page.strRadioGroup = "RadioButton" + id;
    }
    const QString routine = "RadioButton" + secondId + "OnClick";
    PageMarkup::AddEmptySub(page.strScript, routine);
    page.strBody += lines({
                        "         <INPUT " + tagWord + "  LANGUAGE = \"VBScript\"",
                        "             OnClick = '" + routine + "'",
                        "             TYPE = \"RADIO\"",
                        "             NAME = " + quoted(page.strRadioGroup),
                        "             VALUE = \"\" > " + html(in.txtVBSText[5]),
                    }) +
                    Br;
    return page.strRadioGroup;
}

// Every piece is written as a line of its own: the texts that end with a
// line end already (the head, the body) get one more.
QString PageItems::page(const PageText& page, const QString& formId, const QString& colour)
{
    QString out = lines({page.strHead});
    if (!page.strScript.isEmpty())
        out += lines({"<SCRIPT LANGUAGE =\"VBS\">", "<!--", "     SUB BodyTextOnLoad()", "",
                      "     END SUB", page.strScript + "-->", "</SCRIPT>"});
    out += lines({"  </HEAD>"}) + PageMarkup::lineBreak();
    QStringList body{"   <BODY LANGUAGE = \"VBScript\"", "      OnLoad = 'BodyTextOnLoad'",
                     "      LINK = \"#00FFFF\"", "      VLINK = \"#5FFF00\"",
                     "      BGCOLOR = " + quoted(html(colour)) + ">"};
    if (page.blnCenter)
        body << "   <CENTER>";
    body << "      <FONT " + page.strBodyFont + ">"
         << "\r\n"
         << "<CENTER>" << PageMarkup::editNote() << "\r\n"
         << "      </FONT>";
    if (page.blnCenter)
        body << "   </CENTER>";
    body << PageMarkup::formStart("FRM" + formId.left(3)) << page.strBody
         << PageMarkup::formEnd(QStringLiteral("         "), QStringLiteral("   </BODY>"));
    return out + lines(body);
}
