#include "SiteTemplates.h"

#include "PageMarkup.h"
#include "core/Endpoints.h"

using PageMarkup::html;
using PageMarkup::lineBreak;
using PageMarkup::lines;
using PageMarkup::quoted;

namespace {

const QString FocusSub = QStringLiteral("TextBoxOnFocus");

QStringList viewText()
{
    return {"<BR><PRE>This three framed site",
            "   consists of four Html pages.",
            "1. index.htm (Contains only the FrameSet)",
            "2. top.htm   (Is displayed across the top)",
            "3. side.htm  (Is displayed on the left side)",
            "4. view.htm  (Is displayed as the main document)",
            "\r\n",
            "To add graphics and other items to this site you",
            "need to edit the file which corresponds to the",
            "frame you want changed.",
            "\r\n",
            "For example: To add image buttons for the links",
            "on the left you would need to edit side.htm and",
            "add the images such that they are vertically",
            "arranged.</PRE>"};
}

} // namespace

SiteTemplates::SiteTemplates(const PageText& page, const PageInputs& in, const Names& names)
    : m_page(page), m_in(in), m_miscSub("MISC" + names.miscId),
      m_frameName("FrameIndex" + names.frameId), m_formName("FRM" + names.formId.left(3)),
      m_boxName("TextBox" + names.boxId)
{
}

QString SiteTemplates::scriptBlock() const
{
    return lines({
               "  <SCRIPT LANGUAGE =\"VBS\">",
               "    <!--",
               "    SUB " + m_miscSub + "()",
               "        MSGBOX \"This sub routine executes when the link is linked!\"",
               "    END SUB",
               "    SUB " + FocusSub + "()",
               "        MSGBOX \"This sub routine executes when the text box gets the focus!\"",
               "    END SUB",
               "    -->",
               "  </SCRIPT>",
               "  </HEAD>",
           }) +
           lineBreak();
}

QString SiteTemplates::bodyOpening(const QString& center) const
{
    QStringList body{"   <BODY ", "      LINK = \"#00FFFF\"", "      VLINK = \"#5FFF00\"",
                     "      BGCOLOR = " + quoted(html(m_in.colour)) + ">"};
    if (m_page.blnCenter)
        body << center;
    body << "      <FONT " + m_page.strBodyFont + ">"
         << "\r\n"
         << "<BR><CENTER>"
         << "<A HREF = 'JavaScript:" + m_miscSub + "()'>Clicking this link calls Sub " + m_miscSub +
                "()</A><P>"
         << PageMarkup::editNote() << "\r\n";
    return lines(body);
}

QString SiteTemplates::form(const QString& boxTag) const
{
    QStringList form{"      </FONT>"};
    if (m_page.blnCenter)
        form << "   </CENTER>";
    form << PageMarkup::formStart(m_formName) << boxTag + "LANGUAGE = \"VBScript\""
         << "              OnFocus = '" + FocusSub + "'"
         << "              TYPE = " + quoted(html(m_in.cboVBSSelect[8]))
         << "              NAME = " + quoted(m_boxName)
         << "              VALUE = " + quoted(html(m_in.txtVBSText[1]))
         << "              SIZE = " + quoted(html(m_in.cboVBSSelect[0]))
         << "              MAXLENGTH = " + quoted(html(m_in.cboVBSSelect[1])) + ">"
         << PageMarkup::formEnd(QStringLiteral("          "), QStringLiteral("  </BODY>"));
    return lines(form);
}

QString SiteTemplates::skeleton() const
{
    return lines({m_page.strHead + "\r\n"}) + scriptBlock() + bodyOpening("   <CENTER>") +
           form("          <INPUT ");
}

QString SiteTemplates::bodyLine() const
{
    return "<BODY LINK = \"#00FFFF\" VLINK = \"#5FFF00\" BGCOLOR = " + quoted(html(m_in.colour)) +
           ">";
}

QString SiteTemplates::frameSet(const Files& files) const
{
    return m_page.strBody +
           lines({"<FRAMESET ROWS = \"40,*\"",
                  "    FRAMESPACING = \"0\"",
                  "    FRAMEBORDER = \"0\">",
                  "<FRAME NAME =" + quoted(m_frameName + "1"),
                  "    SRC = " + quoted(html(files.top)),
                  "    SCROLLING = \"NO\" NORESIZE ",
                  "    MARGINHEIGHT = \"0\"",
                  "    MARGINWIDTH = \"0\"",
                  "    FRAMESPACING = \"0\"",
                  "    FRAMEBORDER = \"NO\">",
                  "<FRAMESET  COLS = \"70,*\"",
                  "    FRAMEBORDER = \"0\"",
                  "    FRAMESPACING = \"0\">",
                  "<FRAME NAME = " + quoted(m_frameName + "2"),
                  "    SRC = " + quoted(html(files.side)),
                  "    SCROLLING = \"NO\" NORESIZE",
                  "    FRAMEHEIGHT = \"0\"",
                  "    FRAMEWIDTH = \"0\">",
                  "<FRAME NAME = \"ViewField\"",
                  "    SRC = " + quoted(html(files.view)),
                  "    SCROLLING = \"YES\" NORESIZE",
                  "    MARGINHEIGHT = \"0\"",
                  "    MARGINWIDTH = \"0\"",
                  "    FRAMESPACING = \"0\"",
                  "    FRAMEBORDER = \"NO\">",
                  "</FRAMESET></FRAMESET>"}) +
           "\r\n";
}

// The Back link names the view file by its full local path, with no blank
// before Target: the program's own.
QString SiteTemplates::side(const Files& files) const
{
    QStringList side{m_page.strHead, bodyLine(), "<FONT " + m_page.strBodyFont + ">"};
    for (int n = 1; n <= 4; ++n)
        side << "<P><A HREF=" + quoted(Endpoint::ProductHomeUrl) +
                    QStringLiteral(" Target = \"ViewField\">Link %1</A>").arg(n);
    side << "<P><A HREF=" + quoted(html(files.viewPath)) + "Target = \"ViewField\">Back</A>"
         << "</FONT>"
         << "</BODY>"
         << "</HTML>";
    return lines(side);
}

QString SiteTemplates::top() const
{
    QStringList top{m_page.strHead + "\r\n", bodyLine()};
    if (m_page.blnCenter)
        top << "<CENTER>";
    top << "<FONT " + m_page.strBodyFont + ">"
        << "<MARQUEE BGCOLOR=\"WHITE\" ALIGN=\"MIDDLE\" DIRECTION=\"LEFT\" BEHAVIOR=\"SCROLL\" "
           "HEIGHT=\"40\" WIDTH=\"940\" SCROLLAMOUNT=\"10\" SCROLLDELAY=\"0\">DownLoad Vorlan " +
               QString(Endpoint::ProductHomeUrl) + "</MARQUEE></FONT>"
        << "</FONT>";
    if (m_page.blnCenter)
        top << "</CENTER>";
    top << "</BODY>"
        << "</HTML>";
    return lines(top);
}

QString SiteTemplates::view() const
{
    const QString text = lines(viewText());
    return lines({m_page.strHead + "\r\n"}) + scriptBlock() + bodyOpening("<CENTER>") + text +
           text + lineBreak() + form("          <INPUT  ");
}
