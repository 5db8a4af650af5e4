#include "FileFaults.h"
#include "PageRig.h"
#include "publishing/ItemIds.h"

#include <QFile>
#include <QSet>
#include <QtTest>

namespace {

// The page of Write file around a body and a script as the user made them.
QStringList writtenPage(const QStringList& script, const QStringList& body, const QString& form,
                        bool center = false)
{
    QStringList page = HeadLines;
    page << "";
    if (!script.isEmpty())
        page << "<SCRIPT LANGUAGE =\"VBS\">"
             << "<!--"
             << "     SUB BodyTextOnLoad()"
             << ""
             << "     END SUB" << script << "-->"
             << "</SCRIPT>";
    page << "  </HEAD>"
         << ""
         << ""
         << "   <BODY LANGUAGE = \"VBScript\""
         << "      OnLoad = 'BodyTextOnLoad'"
         << "      LINK = \"#00FFFF\""
         << "      VLINK = \"#5FFF00\""
         << "      BGCOLOR = \"White\">";
    if (center)
        page << "   <CENTER>";
    page << "      <FONT " + DefaultFont + ">"
         << ""
         << ""
         << "<CENTER>" << EditNote << ""
         << ""
         << "      </FONT>";
    if (center)
        page << "   </CENTER>";
    page << "      <FORM "
         << "          NAME = \"" + form + "\""
         << "          METHOD = \"POST\""
         << "          ACTION = \"MAILTO:yourname@yourisp.com\">" << body << "         <INPUT "
         << "             TYPE = \"SUBMIT\""
         << "             NAME = \"B1\""
         << "             VALUE = \"SUBMIT\">"
         << "      </FORM><P><P>"
         << "   </BODY>"
         << "</HTML>";
    return page;
}

QStringList emptySub(const QString& name)
{
    return {"     SUB " + name + "()", "", "     END SUB"};
}

const QStringList InputBoxScript{
    "    InPutBox100001 = INPUTBOX(\"Input box text\")",
    "    IF  UCase(InPutBox100001)  = \"VORLAN\" THEN",
    "        Ask = MsgBox \"Visit the Vorlan Web Site?\",VbYesNo+VbQuestion,\"Example Message\"",
    "        If Ask = 6 Then",
    "            Location.Href = \"http://www.example.org/vorlan/\"",
    "        End If",
    "    Else",
    "        Alert \"Next time type Vorlan!\"",
    "    END IF"};

} // namespace

class TestPageBuilder : public QObject
{
    Q_OBJECT

private slots:
    void loadsEmptyPage()
    {
        PageRig r;
        PageBuilder& b = *r.rules;
        QCOMPARE(b.caption.text(), QString("Click buttons to add items to the document."));
        QCOMPARE(b.lblOutPutFile.text(), r.out + "index.htm");
        const QStringList starts{"41", "41", "15", "41", "", "1", "", "UnChecked", "TEXT"};
        for (int i : {0, 1, 2, 3, 5, 6, 7, 8})
            QCOMPARE(b.cboVBSSelect[i]->text(), starts[i]);
        QCOMPARE(b.cboVBSSelect[0]->listCount(), 100);
        QCOMPARE(b.cboBGColor.text(), QString("White"));
        QVERIFY(!b.cmdVBSButtons[8]->isEnabled() && !b.cmdVBSButtons[12]->isEnabled());
        QCOMPARE(b.page().strHead, crlfText(HeadLines));
        QCOMPARE(b.page().strBodyFont, DefaultFont);
    }

    // An input box alone: a script section and a form with nothing in it.
    // The page written, the text state emptied, the next page's name free.
    void inputBoxPageWritten()
    {
        PageRig r;
        r.press(0);
        QCOMPARE(r.rules->caption.text(), QString("INPUT BOX ADDED! InPutBox100001"));
        QVERIFY(r.rules->page().strBody.isEmpty());
        r.rules->chkOpenFile.setChecked(true);
        r.rules->cmdWriteToFile.click();
        const QString path = r.out + "index.htm";
        QCOMPARE(fileBytes(path), crlf(writtenPage(InputBoxScript, {""}, "FRM100")));
        QCOMPARE(r.rules->caption.text(), "Written to =>" + path);
        QCOMPARE(r.opened, QStringList{path});
        QVERIFY(r.rules->page().strScript.isEmpty());
        QCOMPARE(r.rules->lblOutPutFile.text(), r.out + "index1.htm");
        QVERIFY(r.t.prompts.messages().isEmpty());

        r.rules->cmdWriteToFile.click(); // nothing added since
        QCOMPARE(r.t.prompts.messages(), QStringList{"You haven't added any items to this page!"});
        QVERIFY(!QFile::exists(r.out + "index1.htm"));
    }

    // Every body item byte for byte, with its routines; a page of body
    // items only has no script block, but the body still names the routine.
    void bodyItemsByteForByte()
    {
        PageRig r;
        PageBuilder& b = *r.rules;
        r.press(1);
        b.cboVBSSelect[8]->userSelect(1); // PASSWORD: no routines
        b.cboVBSSelect[0]->setText("12");
        r.press(1);
        QCOMPARE(b.caption.text(), QString("TEXT BOX ADDED! TextBox100002"));
        r.press(2);
        r.press(3);
        b.cboVBSSelect[7]->userSelect(1);
        r.press(10);
        QCOMPARE(b.caption.text(), QString("CHECK BOX ADDED! CheckBox100005"));
        QStringList body{"         <INPUT LANGUAGE = \"VBScript\"",
                         "             OnFocus = 'TextBox100001OnFocus'",
                         "             OnBlur = 'TextBox100001OnBlur'",
                         "             OnChange = 'TextBox100001OnChange'",
                         "             OnSelect = 'TextBox100001OnSelect'",
                         "             TYPE = \"TEXT\"",
                         "             NAME = \"TextBox100001\"",
                         "             VALUE = \"Default text box text\"",
                         "             SIZE = \"41\"",
                         "             MAXLENGTH = \"41\">",
                         "<BR>",
                         "         <INPUT LANGUAGE = \"VBScript\"",
                         "             TYPE = \"PASSWORD\"",
                         "             NAME = \"TextBox100002\"",
                         "             VALUE = \"Default text box text\"",
                         "             SIZE = \"12\"",
                         "             MAXLENGTH = \"41\">",
                         "<BR>",
                         "         <TEXTAREA LANGUAGE = \"VBScript\"",
                         "             OnFocus = 'TextArea100003OnFocus'",
                         "             OnBlur = 'TextArea100003OnBlur'",
                         "             OnChange = 'TextArea100003OnChange'",
                         "             OnSelect = 'TextArea100003OnSelect'",
                         "             NAME = \"TextArea100003\"",
                         "             ROWS = \"15\"",
                         "             COLS = \"41\">",
                         "Default text",
                         "         </TEXTAREA>",
                         "<BR>",
                         "         <INPUT LANGUAGE = \"VBScript\"",
                         "             OnClick = 'CommandButton100004OnClick'",
                         "             TYPE = \"BUTTON\"",
                         "             NAME = \"CommandButton100004\"",
                         "             VALUE = \"Button name text\">",
                         "<BR>",
                         "         <INPUT Checked  LANGUAGE = \"VBScript\"",
                         "             OnClick = 'CheckBox100005OnClick'",
                         "             TYPE = \"CHECKBOX\"",
                         "             NAME = \"CheckBox100005\">Item description",
                         "<BR>"};
        QStringList script;
        for (const char* e : {"OnFocus", "OnBlur", "OnChange", "OnSelect"})
            script << emptySub("TextBox100001" + QString(e));
        for (const char* e : {"OnFocus", "OnBlur", "OnChange", "OnSelect"})
            script << emptySub("TextArea100003" + QString(e));
        script << emptySub("CommandButton100004OnClick") << emptySub("CheckBox100005OnClick");
        QCOMPARE(b.page().strBody, crlfText(body));
        QCOMPARE(b.page().strScript, crlfText(script));

        // A list of two options, then a radio group of two.
        b.txtVBSText[3]->setText("First");
        r.press(7);
        QCOMPARE(b.caption.text(), QString("LIST ITEM 1 ADDED!"));
        QVERIFY(b.cmdVBSButtons[8]->isEnabled());
        b.txtVBSText[3]->setText("Second");
        r.press(7);
        b.cboVBSSelect[6]->userSelect(1);
        r.press(8);
        QCOMPARE(b.caption.text(), QString("LIST BOX ADDED! ListBox100008"));
        QVERIFY(!b.cmdVBSButtons[8]->isEnabled());
        r.press(11);
        QCOMPARE(b.caption.text(), QString("OPTION 1 ADDED! "));
        QVERIFY(b.cmdVBSButtons[12]->isEnabled());
        r.press(11);
        r.press(12);
        QCOMPARE(b.caption.text(), QString("OPTION BUTTONS ADDED! RadioButton100009"));
        QVERIFY(!b.cmdVBSButtons[12]->isEnabled());
        body << "         <SELECT MULTIPLE  LANGUAGE = \"VBScript\""
             << "             OnFocus = 'ListBox100008OnFocus'"
             << "             OnBlur = 'ListBox100008OnBlur'"
             << "             OnChange = 'ListBox100008OnChange'"
             << "             NAME = \"ListBox100008\""
             << "             SIZE = \"1\">"
             << "             <OPTION SELECTED"
             << "                 NAME = \"LstOpt100006\""
             << "                 VALUE = \"\" > First"
             << "             </OPTION>"
             << "             <OPTION "
             << "                 NAME = \"LstOpt100007\""
             << "                 VALUE = \"\" > Second"
             << "             </OPTION>"
             << "         </SELECT>"
             << "<BR>"
             << "         <INPUT CHECKED  LANGUAGE = \"VBScript\""
             << "             OnClick = 'RadioButton100010OnClick'"
             << "             TYPE = \"RADIO\""
             << "             NAME = \"RadioButton100009\""
             << "             VALUE = \"\" > Option description"
             << "<BR>"
             << "         <INPUT   LANGUAGE = \"VBScript\""
             << "             OnClick = 'RadioButton100012OnClick'"
             << "             TYPE = \"RADIO\""
             << "             NAME = \"RadioButton100009\""
             << "             VALUE = \"\" > Option description"
             << "<BR>";
        for (const char* e : {"OnFocus", "OnBlur", "OnChange"})
            script << emptySub("ListBox100008" + QString(e));
        script << emptySub("RadioButton100010OnClick") << emptySub("RadioButton100012OnClick");
        QCOMPARE(b.page().strBody, crlfText(body));
        QCOMPARE(b.page().strScript, crlfText(script));
    }

    void bodyOnlyPageHasNoScriptBlock()
    {
        PageRig r;
        r.rules->cboVBSSelect[8]->userSelect(1);
        r.press(1);
        r.rules->cmdWriteToFile.click();
        QCOMPARE(fileBytes(r.out + "index.htm"),
                 crlf(writtenPage(
                     {},
                     {"         <INPUT LANGUAGE = \"VBScript\"", "             TYPE = \"PASSWORD\"",
                      "             NAME = \"TextBox100001\"",
                      "             VALUE = \"Default text box text\"",
                      "             SIZE = \"41\"", "             MAXLENGTH = \"41\">", "<BR>", ""},
                     "FRM100")));
    }

    // Centred: each item in a CENTER of its own (a list item's stays empty),
    // the input box and the group's end not; the page's font too.
    void centring()
    {
        PageRig r;
        PageBuilder& b = *r.rules;
        b.cmdCenter.click();
        QCOMPARE(b.cmdCenter.text(), QString("Center On"));
        r.press(0);
        r.press(7);
        r.press(12);
        r.press(5);
        QCOMPARE(b.caption.text(), QString("IFRAME CREATED!"));
        QCOMPARE(b.page().strBody,
                 crlfText({"<CENTER>", "</CENTER>", "<CENTER>", "      <IFRAME SRC = \"view.htm\"",
                           "          WIDTH = \"100%\"", "          HEIGHT = \"240\"",
                           "          SCROLLING = \"YES\"", "          HSPACE = \"10\">",
                           "      </IFRAME>", "<BR></CENTER>"}));
        QStringList view = HeadLines;
        view << ""
             << "";
        for (int i = 0; i < 5; ++i)
            view << "<BR><PRE>This is an Example View File!"
                 << "This floating frame site consists of two Html pages."
                 << "1. index.htm (Contains only the FrameSet)"
                 << "2. view.htm  (Is displayed as the main document)"
                 << ""
                 << "To add graphics and other items to this site you"
                 << "need to edit the file which corresponds to the"
                 << "frame you want changed."
                 << ""
                 << "For example: To add your text to the view window"
                 << "you would need to edit view.htm</PRE>";
        QCOMPARE(fileBytes(r.out + "view.htm"), crlf(view));
        r.press(5); // the next frame shows a page of its own
        QVERIFY(b.page().strBody.contains("<IFRAME SRC = \"view1.htm\""));

        b.cmdCenter.click();
        QCOMPARE(b.cmdCenter.text(), QString("Center Off"));
        b.cmdCenter.click();
        b.cmdWriteToFile.click();
        const QByteArray page = fileBytes(r.out + "index.htm");
        QVERIFY(page.contains("BGCOLOR = \"White\">\r\n   <CENTER>\r\n      <FONT "));
        QVERIFY(page.contains("      </FONT>\r\n   </CENTER>\r\n      <FORM "));
    }

    // A list box or radio group left open: its options are gone with the
    // page, while the counts and the group's name go on to the next one.
    void openListAndGroupCarryOver()
    {
        PageRig r;
        PageBuilder& b = *r.rules;
        r.press(7);
        r.press(11);
        b.cmdWriteToFile.click();
        QVERIFY(!fileBytes(r.out + "index.htm").contains("OPTION"));
        QCOMPARE(b.page().intListItems, 1);
        QCOMPARE(b.page().intRadioItems, 1);
        QVERIFY(b.page().strListOptions.isEmpty());
        QVERIFY(b.cmdVBSButtons[8]->isEnabled() && b.cmdVBSButtons[12]->isEnabled());
        b.txtVBSText[3]->setText("Later");
        r.press(7);
        QCOMPARE(b.caption.text(), QString("LIST ITEM 2 ADDED!"));
        QCOMPARE(b.page().strListOptions.section("\r\n", 0, 0), QString("             <OPTION "));
        r.press(11); // no CHECKED, the former group's name
        QVERIFY(b.page().strBody.startsWith("         <INPUT   LANGUAGE"));
        QVERIFY(b.page().strBody.contains("NAME = \"RadioButton100002\""));
        QCOMPARE(b.caption.text(), QString("OPTION 2 ADDED! "));
    }

    void bodyFontFromDialog()
    {
        PageRig r;
        r.t.prompts.answerFont({"Courier New", 10, 255});
        r.rules->cmdBodyFont.click();
        QCOMPARE(r.t.prompts.shown.last().kind, QString("font"));
        QCOMPARE(r.rules->page().strBodyFont,
                 QString("FACE = \"Courier New\" SIZE = \"2.5\" COLOR = \"255\" "));
        r.press(1);
        r.rules->cmdWriteToFile.click();
        QVERIFY(fileBytes(r.out + "index.htm")
                    .contains("      <FONT FACE = \"Courier New\" SIZE = \"2.5\" COLOR = \"255\" "
                              ">\r\n"));
        r.t.prompts.answerFont({"Sans \"Q\"", 12, 16711680});
        r.rules->cmdBodyFont.click();
        QCOMPARE(r.rules->page().strBodyFont,
                 QString("FACE = \"Sans &quot;Q&quot;\" SIZE = \"3\" COLOR = \"16711680\" "));
        r.rules->cmdBodyFont.click(); // cancelled: the first font again
        QCOMPARE(r.rules->page().strBodyFont, DefaultFont);
    }

    // Typed texts with markup, quotes, line ends and characters outside
    // Windows-1252 stay inside their attribute or string; plain ones stand
    // as typed (the other tests).
    void typedTextsEscaped()
    {
        PageRig r;
        PageBuilder& b = *r.rules;
        b.txtVBSText[0]->setText("Say \"hi\"\r\nnow \u20AC \u4E2D");
        r.press(0);
        b.txtVBSText[1]->setText("\"><script>alert(1)</script>");
        r.press(1);
        b.txtVBSText[2]->setText("</TEXTAREA>&\nx \U0001F600");
        r.press(2);
        QVERIFY(b.page().strScript.startsWith("    InPutBox100001 = INPUTBOX(\"Say \"\"hi\"\" now "
                                              "\u20AC \" & ChrW(20013) & \"\")\r\n"));
        QVERIFY(b.page().strBody.contains(
            "\r\n             VALUE = \"&quot;&gt;&lt;script&gt;alert(1)&lt;/script&gt;\"\r\n"));
        QVERIFY(b.page().strBody.contains(
            "COLS = \"41\">\r\n&lt;/TEXTAREA&gt;&amp; x &#128512;\r\n         </TEXTAREA>\r\n"));
        b.cmdWriteToFile.click();
        const QByteArray page = fileBytes(r.out + "index.htm");
        QVERIFY(page.contains("now \x80 \" & ChrW(20013)")); // the euro sign in Windows-1252
        QCOMPARE(page.count('?'), 1); // the example's own question: nothing lost to "?"
    }

    // A folder that takes no file, or one gone: the user is told, no file is
    // left, and what was added stays for another try.
    void unwritableFolder()
    {
        PageRig r;
        PageBuilder& b = *r.rules;
        r.press(1);
        {
            ReadOnlyFolder locked(r.out);
            if (!locked.refusesFiles())
                QSKIP("this file system cannot refuse files here");
            b.cmdWriteToFile.click();
            b.cmdSkeleton.click();
            b.cmdThreeFrameSite.click();
            r.press(5);
        }
        QCOMPARE(r.t.prompts.messages().size(), 4);
        for (const QString& message : r.t.prompts.messages())
            QVERIFY2(message.startsWith("The page could not be written to " + r.out),
                     qPrintable(message));
        QCOMPARE(QDir(r.out).entryList(QDir::Files | QDir::Hidden), QStringList());
        QVERIFY(b.page().strBody.startsWith("         <INPUT LANGUAGE"));
        QVERIFY(!b.page().strBody.contains("IFRAME"));

        b.cmdWriteToFile.click(); // the folder takes files again
        QVERIFY(fileBytes(r.out + "index.htm").contains("NAME = \"TextBox100001\""));

        r.press(3);
        QVERIFY(QDir(r.out).removeRecursively());
        b.cmdWriteToFile.click();
        QCOMPARE(r.t.prompts.messages().size(), 5);
        QVERIFY(r.t.prompts.messages().last().contains(r.out + "index1.htm"));
        QVERIFY(b.page().strBody.contains("CommandButton"));
    }

    // A template that took the name shown meanwhile is not written over.
    void writeTakesFreeName()
    {
        PageRig r;
        r.rules->cmdSkeleton.click();
        QCOMPARE(r.rules->caption.text(), "Written to =>" + r.out + "index.htm");
        r.press(3);
        r.rules->cmdWriteToFile.click();
        QCOMPARE(r.rules->caption.text(), "Written to =>" + r.out + "index1.htm");
        QVERIFY(fileBytes(r.out + "index.htm").contains("MISC"));
        QCOMPARE(r.rules->lblOutPutFile.text(), r.out + "index2.htm");
    }

    void itemIds()
    {
        QCOMPARE(ItemIds::idFromNumber(".7055475"), QString("705547"));
        QCOMPARE(ItemIds::idFromNumber("1.234567E-02"), QString("123456"));
        QCOMPARE(ItemIds::idFromNumber(".0705547"), QString()); // a leading zero
        QCOMPARE(ItemIds::idFromNumber(".705547"), QString());  // six digits only
        // Past 20 digits six are kept, which are too few: another is drawn.
        QCOMPARE(ItemIds::idFromNumber("123456789012345678901"), QString());
        ItemIds ids([] { return QString("10:42:17"); }); // one second throughout
        QSet<QString> seen;
        for (int i = 0; i < 50; ++i) {
            const QString id = ids.NewItemId();
            QVERIFY(id.size() == 6 && id[0] != '0' && id.toInt() > 0);
            seen.insert(id);
        }
        QVERIFY(seen.size() > 45);
    }
};

QTEST_GUILESS_MAIN(TestPageBuilder)
#include "TestPageBuilder.moc"
