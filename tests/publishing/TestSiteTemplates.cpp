#include "PageRig.h"

#include <QtTest>

namespace {

QStringList scriptBlock(const QString& misc)
{
    return {"  <SCRIPT LANGUAGE =\"VBS\">",
            "    <!--",
            "    SUB " + misc + "()",
            "        MSGBOX \"This sub routine executes when the link is linked!\"",
            "    END SUB",
            "    SUB TextBoxOnFocus()",
            "        MSGBOX \"This sub routine executes when the text box gets the focus!\"",
            "    END SUB",
            "    -->",
            "  </SCRIPT>",
            "  </HEAD>",
            "",
            ""};
}

QStringList bodyOpening(const QString& misc, const QString& colour, const QString& center)
{
    QStringList body{"   <BODY ", "      LINK = \"#00FFFF\"", "      VLINK = \"#5FFF00\"",
                     "      BGCOLOR = \"" + colour + "\">"};
    if (!center.isEmpty())
        body << center;
    body << "      <FONT " + DefaultFont + ">"
         << ""
         << ""
         << "<BR><CENTER>"
         << "<A HREF = 'JavaScript:" + misc + "()'>Clicking this link calls Sub " + misc +
                "()</A><P>"
         << EditNote << ""
         << "";
    return body;
}

// boxTag: the text box's opening; the form's values are the rig's.
QStringList form(const QString& boxTag, const QString& formName, const QString& box, bool center)
{
    QStringList form{"      </FONT>"};
    if (center)
        form << "   </CENTER>";
    form << "      <FORM "
         << "          NAME = \"" + formName + "\""
         << "          METHOD = \"POST\""
         << "          ACTION = \"MAILTO:yourname@yourisp.com\">"
         << boxTag + "LANGUAGE = \"VBScript\""
         << "              OnFocus = 'TextBoxOnFocus'"
         << "              TYPE = \"PASSWORD\""
         << "              NAME = \"" + box + "\""
         << "              VALUE = \"secret\""
         << "              SIZE = \"20\""
         << "              MAXLENGTH = \"41\">"
         << "          <INPUT "
         << "              TYPE = \"SUBMIT\""
         << "              NAME = \"B1\""
         << "              VALUE = \"SUBMIT\">"
         << "      </FORM><P><P>"
         << "  </BODY>"
         << "</HTML>";
    return form;
}

QStringList headAndBreak()
{
    return HeadLines + QStringList{"", ""};
}

// The rig with the form's values and colour changed from their first ones.
void setUpForm(PageRig& r)
{
    r.rules->cboVBSSelect[8]->userSelect(1);
    r.rules->cboVBSSelect[0]->userSelect(19);
    r.rules->txtVBSText[1]->setText("secret");
    r.rules->cboBGColor.userSelect(3);
}

} // namespace

class TestSiteTemplates : public QObject
{
    Q_OBJECT

private slots:
    // The one-page template, centred; the page under way is not touched.
    void skeleton()
    {
        PageRig r;
        setUpForm(r);
        r.rules->cmdCenter.click();
        r.press(3);
        const QString body = r.rules->page().strBody;
        r.rules->chkOpenFile.setChecked(true);
        r.rules->cmdSkeleton.click();
        const QString path = r.out + "index.htm";
        QCOMPARE(r.rules->caption.text(), "Written to =>" + path);
        QCOMPARE(r.opened, QStringList{path});
        // The ids in order: the button, then misc, form and box.
        QCOMPARE(fileBytes(path), crlf(headAndBreak() + scriptBlock("MISC100002") +
                                       bodyOpening("MISC100002", "Blue", "   <CENTER>") +
                                       form("          <INPUT ", "FRM100", "TextBox100004", true)));
        QCOMPARE(r.rules->page().strBody, body);
        QCOMPARE(r.rules->lblOutPutFile.text(), path);
    }

    // The site beside an index.htm and a view.htm: its files take free
    // names and point at each other by them; the items added before stand
    // ahead of the frame set and are used up.
    void threeFrameSite()
    {
        PageRig r;
        QVERIFY(putFile(r.out + "index.htm", "mine"));
        QVERIFY(putFile(r.out + "view.htm", "mine too"));
        setUpForm(r);
        r.press(10);
        const QString items = r.rules->page().strBody;
        r.rules->cmdThreeFrameSite.click();
        QCOMPARE(r.rules->caption.text(), "Written to =>" + r.out + "index1.htm");
        QVERIFY(r.rules->page().strBody.isEmpty());
        QCOMPARE(fileBytes(r.out + "index.htm"), QByteArray("mine"));
        QCOMPARE(fileBytes(r.out + "view.htm"), QByteArray("mine too"));
        QVERIFY(r.opened.isEmpty());

        // Ids: the check box, then misc, frame, form and box.
        const QStringList frameSet{"<FRAMESET ROWS = \"40,*\"",
                                   "    FRAMESPACING = \"0\"",
                                   "    FRAMEBORDER = \"0\">",
                                   "<FRAME NAME =\"FrameIndex1000031\"",
                                   "    SRC = \"top.htm\"",
                                   "    SCROLLING = \"NO\" NORESIZE ",
                                   "    MARGINHEIGHT = \"0\"",
                                   "    MARGINWIDTH = \"0\"",
                                   "    FRAMESPACING = \"0\"",
                                   "    FRAMEBORDER = \"NO\">",
                                   "<FRAMESET  COLS = \"70,*\"",
                                   "    FRAMEBORDER = \"0\"",
                                   "    FRAMESPACING = \"0\">",
                                   "<FRAME NAME = \"FrameIndex1000032\"",
                                   "    SRC = \"side.htm\"",
                                   "    SCROLLING = \"NO\" NORESIZE",
                                   "    FRAMEHEIGHT = \"0\"",
                                   "    FRAMEWIDTH = \"0\">",
                                   "<FRAME NAME = \"ViewField\"",
                                   "    SRC = \"view1.htm\"",
                                   "    SCROLLING = \"YES\" NORESIZE",
                                   "    MARGINHEIGHT = \"0\"",
                                   "    MARGINWIDTH = \"0\"",
                                   "    FRAMESPACING = \"0\"",
                                   "    FRAMEBORDER = \"NO\">",
                                   "</FRAMESET></FRAMESET>",
                                   ""};
        QCOMPARE(fileBytes(r.out + "index1.htm"), items.toLatin1() + crlf(frameSet));

        const QString bodyLine = "<BODY LINK = \"#00FFFF\" VLINK = \"#5FFF00\" BGCOLOR = \"Blue\">";
        QStringList side = HeadLines;
        side << "" << bodyLine << "<FONT " + DefaultFont + ">";
        for (int n = 1; n <= 4; ++n)
            side << QString("<P><A HREF=\"http://www.example.org/vorlan/\" Target = "
                            "\"ViewField\">Link %1</A>")
                        .arg(n);
        side << "<P><A HREF=\"" + r.out + "view1.htm\"Target = \"ViewField\">Back</A>"
             << "</FONT>"
             << "</BODY>"
             << "</HTML>";
        QCOMPARE(fileBytes(r.out + "side.htm"), crlf(side));

        QCOMPARE(fileBytes(r.out + "top.htm"),
                 crlf(headAndBreak() +
                      QStringList{bodyLine, "<FONT " + DefaultFont + ">",
                                  "<MARQUEE BGCOLOR=\"WHITE\" ALIGN=\"MIDDLE\" "
                                  "DIRECTION=\"LEFT\" BEHAVIOR=\"SCROLL\" HEIGHT=\"40\" "
                                  "WIDTH=\"940\" SCROLLAMOUNT=\"10\" SCROLLDELAY=\"0\">DownLoad "
                                  "Vorlan http://www.example.org/vorlan/</MARQUEE></FONT>",
                                  "</FONT>", "</BODY>", "</HTML>"}));

        const QStringList text{"<BR><PRE>This three framed site",
                               "   consists of four Html pages.",
                               "1. index.htm (Contains only the FrameSet)",
                               "2. top.htm   (Is displayed across the top)",
                               "3. side.htm  (Is displayed on the left side)",
                               "4. view.htm  (Is displayed as the main document)",
                               "",
                               "",
                               "To add graphics and other items to this site you",
                               "need to edit the file which corresponds to the",
                               "frame you want changed.",
                               "",
                               "",
                               "For example: To add image buttons for the links",
                               "on the left you would need to edit side.htm and",
                               "add the images such that they are vertically",
                               "arranged.</PRE>"};
        QCOMPARE(fileBytes(r.out + "view1.htm"),
                 crlf(headAndBreak() + scriptBlock("MISC100002") +
                      bodyOpening("MISC100002", "Blue", QString()) + text + text +
                      QStringList{"", ""} +
                      form("          <INPUT  ", "FRM100", "TextBox100005", false)));
    }

    // Centred, the site's top and view pages take their own CENTER lines.
    void centredSite()
    {
        PageRig r;
        r.rules->cmdCenter.click();
        r.rules->cmdThreeFrameSite.click();
        const QByteArray top = fileBytes(r.out + "top.htm");
        QVERIFY(top.contains("BGCOLOR = \"White\">\r\n<CENTER>\r\n<FONT "));
        QVERIFY(top.contains("</FONT>\r\n</FONT>\r\n</CENTER>\r\n</BODY>"));
        const QByteArray view = fileBytes(r.out + "view.htm");
        QVERIFY(view.contains("BGCOLOR = \"White\">\r\n<CENTER>\r\n      <FONT "));
        QVERIFY(view.contains("      </FONT>\r\n   </CENTER>\r\n      <FORM "));
    }
};

QTEST_GUILESS_MAIN(TestSiteTemplates)
#include "TestSiteTemplates.moc"
