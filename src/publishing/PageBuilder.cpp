#include "PageBuilder.h"

#include "PageMarkup.h"
#include "SiteTemplates.h"
#include "core/AppContext.h"
#include "core/FileServices.h"

#include <QFileInfo>

namespace {

struct Item
{
    int index;
    const char* caption;
    const char* tip;
};

const Item Buttons[] = {
    {0, "InPutBox", "Click here to add an InPut Box."},
    {1, "TextBox", "Click here to add a Text Box."},
    {2, "TextArea", "Click here to add a Text Area Box."},
    {3, "Button", "Click here to add a command button"},
    {5, "Floating frame", "Add Iframe item to page"},
    {7, "Add Item", "Click here to add List items."},
    {8, "ListBox", "Click here after adding all items to List Box."},
    {10, "ChkBox", "Click here to add a Check Box."},
    {11, "Add Item", "Click here to add Option buttons."},
    {12, "Options", "Click here after adding all Option Buttons."},
};

const Item Texts[] = {
    {0, "Input box text", "Input box question"},
    {1, "Default text box text", "Default text box text"},
    {2, "Default text", "Default text area text"},
    {3, "List Box item", "List item name."},
    {4, "Item description", "Check box item description"},
    {5, "Option description", "Option button description"},
    {6, "Button name text", "Command button title text"},
};

// The number lists, their first entries as list positions.
const Item Numbers[] = {
    {0, "40", "Text box width in characters"},
    {1, "40", "Maximum number of characters in text box"},
    {2, "14", "Number of rows in text area"},
    {3, "40", "Number of columns in text area"},
    {5, "0", "Number of rows to display in list"},
};

const char* const Colours[] = {"White", "Red",   "Green",  "Blue",  "Yellow",
                               "Black", "Brown", "Orange", "Purple"};

// The items that a centred page wraps in a CENTER of their own.
bool centred(int index)
{
    return index != 0 && index != 12;
}

void describe(Control& control, const char* text, const char* tip)
{
    control.setText(QString::fromLatin1(text));
    control.setToolTip(QString::fromLatin1(tip));
}

} // namespace

PageBuilder::PageBuilder(AppContext& ctx, Links links, QObject* parent)
    : QObject(parent), m_ctx(ctx), m_links(std::move(links))
{
    makeControls();
    describe(cmdBodyFont, "Body text font", "Select font name, size, and color");
    describe(cmdCenter, "Center Off", "Toggle control centering on page");
    describe(chkOpenFile, "Open?", "Open the created file after writing it");
    describe(cmdWriteToFile, "Write file",
             "You Must click this button to Write the items to the output file");
    describe(cmdThreeFrameSite, "3 frame web site",
             "Completely creates three framed web site with one click.");
    describe(cmdSkeleton, "1 page template",
             "Create 1 page with all headers and script routines blank");
    describe(cmdClose, "Close", "Close page creator");
    lblOutPutFile.setToolTip(QStringLiteral("Output files are automatically selected"));
    Label1.setText(QStringLiteral("Output file will be =>"));
    connect(&cmdBodyFont, &Control::clicked, this, &PageBuilder::bodyFontClick);
    connect(&cmdCenter, &Control::clicked, this, &PageBuilder::centerClick);
    connect(&cmdWriteToFile, &Control::clicked, this, &PageBuilder::writeClick);
    connect(&cmdSkeleton, &Control::clicked, this, &PageBuilder::skeletonClick);
    connect(&cmdThreeFrameSite, &Control::clicked, this, &PageBuilder::threeFrameSiteClick);
    connect(&cmdClose, &Control::clicked, this, [this] { m_links.unload(); });
}

void PageBuilder::makeControls()
{
    for (const Item& b : Buttons) {
        Control* button = new Control(QStringLiteral("cmdVBSButtons[%1]").arg(b.index), this);
        describe(*button, b.caption, b.tip);
        connect(button, &Control::clicked, this, [this, i = b.index] { itemClick(i); });
        cmdVBSButtons[b.index] = button;
    }
    for (const Item& t : Texts) {
        txtVBSText[t.index] = new Control(QStringLiteral("txtVBSText[%1]").arg(t.index), this);
        describe(*txtVBSText[t.index], t.caption, t.tip);
    }
    for (int i : {0, 1, 2, 3, 5, 6, 7, 8})
        cboVBSSelect[i] = new ListControl(QStringLiteral("cboVBSSelect[%1]").arg(i), this);
    for (const Item& n : Numbers)
        cboVBSSelect[n.index]->setToolTip(QString::fromLatin1(n.tip));
    cboVBSSelect[6]->setToolTip(QStringLiteral("Can Multiple selections be made or not."));
    cboVBSSelect[7]->setToolTip(QStringLiteral("Checked or unchecked"));
    cboVBSSelect[8]->setToolTip(QStringLiteral("Type of text box"));
    cboBGColor.setToolTip(QStringLiteral("Select background color"));
}

void PageBuilder::Load()
{
    caption.setText(QStringLiteral("Click buttons to add items to the document."));
    for (int number = 1; number <= 100; ++number)
        for (const Item& n : Numbers)
            cboVBSSelect[n.index]->addItem(QString::number(number));
    for (const Item& n : Numbers)
        cboVBSSelect[n.index]->setListIndex(QString::fromLatin1(n.caption).toInt());
    const QStringList choices[] = {
        {"", "MULTIPLE"}, {"UnChecked", "Checked"}, {"TEXT", "PASSWORD"}};
    for (int i = 0; i < 3; ++i) {
        for (const QString& choice : choices[i])
            cboVBSSelect[6 + i]->addItem(choice);
        cboVBSSelect[6 + i]->setListIndex(0);
    }
    for (const char* colour : Colours)
        cboBGColor.addItem(QString::fromLatin1(colour));
    cboBGColor.setListIndex(0);
    // They open only while a list box or a radio group is under way.
    cmdVBSButtons[8]->setEnabled(false);
    cmdVBSButtons[12]->setEnabled(false);
    m_page.strBodyFont = PageMarkup::defaultBodyFont();
    m_page.strOutputFile = outputFile(QStringLiteral("index.htm"));
    lblOutPutFile.setText(m_page.strOutputFile);
    m_page.strHead = PageMarkup::head();
}

void PageBuilder::Unload()
{
    m_page = PageText{};
}

QString PageBuilder::NewItemId()
{
    return m_links.newItemId ? m_links.newItemId() : m_ids.NewItemId();
}

QString PageBuilder::outputFile(const QString& name) const
{
    return UniqueFileName(OutputDirectory(m_ctx) + name);
}

PageInputs PageBuilder::inputs() const
{
    PageInputs in;
    for (int i = 0; i < 7; ++i)
        in.txtVBSText[i] = txtVBSText[i]->text();
    for (int i = 0; i < 9; ++i)
        if (cboVBSSelect[i])
            in.cboVBSSelect[i] = cboVBSSelect[i]->text();
    in.colour = cboBGColor.text();
    return in;
}

void PageBuilder::itemClick(int index)
{
    const QString id = NewItemId();
    const PageInputs in = inputs();
    QString view;
    if (index == 5) {
        // The frame's example page is written at once, beside the page; when
        // it cannot be, the page stays as it was.
        view = outputFile(QStringLiteral("view.htm"));
        if (!writeFiles({{view, PageItems::frameView(m_page)}}))
            return;
    }
    const bool center = m_page.blnCenter && centred(index);
    if (center)
        m_page.strBody += QStringLiteral("<CENTER>\r\n");
    addItem(index, id, in, NameAfterLast(view, QLatin1Char('/')));
    if (center)
        m_page.strBody += QStringLiteral("</CENTER>\r\n");
}

void PageBuilder::addItem(int index, const QString& id, const PageInputs& in,
                          const QString& viewName)
{
    switch (index) {
    case 0:
        caption.setText("INPUT BOX ADDED! " + PageItems::inputBox(m_page, id, in));
        break;
    case 1:
        caption.setText("TEXT BOX ADDED! " + PageItems::textBox(m_page, id, in));
        break;
    case 2:
        caption.setText("TEXT AREA ADDED! " + PageItems::textArea(m_page, id, in));
        break;
    case 3:
        caption.setText("COMMAND BUTTON ADDED! " + PageItems::commandButton(m_page, id, in));
        break;
    case 5:
        PageItems::floatingFrame(m_page, viewName);
        caption.setText(QStringLiteral("IFRAME CREATED!"));
        break;
    case 7:
        PageItems::listItem(m_page, id, in);
        caption.setText(QStringLiteral("LIST ITEM %1 ADDED!").arg(m_page.intListItems));
        cmdVBSButtons[8]->setEnabled(true);
        break;
    case 8:
        caption.setText("LIST BOX ADDED! " + PageItems::listBox(m_page, id, in));
        cmdVBSButtons[8]->setEnabled(false);
        break;
    case 10:
        caption.setText("CHECK BOX ADDED! " + PageItems::checkBox(m_page, id, in));
        break;
    case 11:
        PageItems::radioButton(m_page, id, NewItemId(), in);
        caption.setText(QStringLiteral("OPTION %1 ADDED! ").arg(m_page.intRadioItems));
        cmdVBSButtons[12]->setEnabled(true);
        break;
    case 12:
        caption.setText("OPTION BUTTONS ADDED! " + m_page.strRadioGroup);
        cmdVBSButtons[12]->setEnabled(false);
        m_page.intRadioItems = 0;
        break;
    default:
        break;
    }
}

bool PageBuilder::writeFiles(const QList<PageFiles::File>& files)
{
    const QString fault = PageFiles::write(files);
    if (fault.isEmpty())
        return true;
    m_ctx.MsgBox(fault, PromptService::Exclamation);
    return false;
}

// The title tells where the page went; the browser shows it if asked to.
void PageBuilder::written(const QString& path)
{
    caption.setText("Written to =>" + path);
    if (chkOpenFile.isChecked())
        m_links.openPage(path);
}

void PageBuilder::writeClick()
{
    if (m_page.strScript.isEmpty() && m_page.strBody.isEmpty()) {
        m_ctx.MsgBox(QStringLiteral("You haven't added any items to this page!"));
        return;
    }
    // A template may have taken the name shown since: a page is never
    // written over, it goes to the next free name.
    if (QFileInfo::exists(m_page.strOutputFile))
        m_page.strOutputFile = UniqueFileName(m_page.strOutputFile);
    const QString path = m_page.strOutputFile;
    const bool ok = writeFiles({{path, PageItems::page(m_page, NewItemId(), cboBGColor.text())}});
    // Also after a failure the next name is taken afresh: the output folder
    // may be set right meanwhile. What was added stays for another try.
    m_page.strOutputFile = outputFile(QStringLiteral("index.htm"));
    lblOutPutFile.setText(m_page.strOutputFile);
    if (!ok)
        return;
    m_page.strScript.clear();
    m_page.strBody.clear();
    m_page.strListOptions.clear();
    written(path);
}

void PageBuilder::skeletonClick()
{
    const QString path = outputFile(QStringLiteral("index.htm"));
    const SiteTemplates::Names names{NewItemId(), QString(), NewItemId(), NewItemId()};
    const PageInputs in = inputs();
    if (writeFiles({{path, SiteTemplates(m_page, in, names).skeleton()}}))
        written(path);
}

void PageBuilder::threeFrameSiteClick()
{
    SiteTemplates::Names names;
    names.miscId = NewItemId();
    names.frameId = NewItemId();
    names.formId = NewItemId();
    names.boxId = NewItemId();
    const PageInputs in = inputs();
    const QString index = outputFile(QStringLiteral("index.htm"));
    const QString side = outputFile(QStringLiteral("side.htm"));
    const QString top = outputFile(QStringLiteral("top.htm"));
    const QString view = outputFile(QStringLiteral("view.htm"));
    const QChar slash = QLatin1Char('/');
    const SiteTemplates::Files files{NameAfterLast(top, slash), NameAfterLast(side, slash),
                                     NameAfterLast(view, slash), view};
    const SiteTemplates site(m_page, in, names);
    if (!writeFiles({{side, site.side(files)},
                     {top, site.top()},
                     {view, site.view()},
                     {index, site.frameSet(files)}}))
        return;
    m_page.strBody.clear(); // the items added stand ahead of the frame set
    written(index);
}

void PageBuilder::centerClick()
{
    m_page.blnCenter = !m_page.blnCenter;
    cmdCenter.setText(m_page.blnCenter ? QStringLiteral("Center On")
                                       : QStringLiteral("Center Off"));
}

// Cancelling puts the font of a new page back.
void PageBuilder::bodyFontClick()
{
    PromptService::FontChoice choice;
    if (m_ctx.prompts.fontDialog(QStringLiteral("Body text font"), choice))
        m_page.strBodyFont = PageMarkup::bodyFont(choice.name, choice.pointSize, choice.color);
    else
        m_page.strBodyFont = PageMarkup::defaultBodyFont();
}
