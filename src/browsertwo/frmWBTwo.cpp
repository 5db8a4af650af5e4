#include "frmWBTwo.h"

#include "BrowserTwoWindows.h"
#include "browserone/BrowserWindowList.h"
#include "browserone/PageCommands.h"
#include "browserone/WebBrowserControl.h"
#include "browserone/WebPage.h"
#include "core/AppContext.h"
#include "core/ControlBinder.h"
#include "core/PlaceWindow.h"
#include "core/WindowPlace.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QComboBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>
#include <QStatusBar>
#include <QTimer>
#include <QVBoxLayout>
#include <QWebEngineView>

frmWBTwo::frmWBTwo(AppContext& ctx, WordListActions& lists, BrowserTwoWindows& windows)
    : m_ctx(ctx), m_windows(windows)
{
    setObjectName(QStringLiteral("frmWBTwo"));
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    setMinimumSize(twipsToPixels(WindowPlace::MinWidth), twipsToPixels(WindowPlace::MinHeight));
    resize(twipsToPixels(WindowPlace::MinWidth), twipsToPixels(WindowPlace::MinHeight));
    m_view = new QWebEngineView(this);
    m_view->setObjectName(QStringLiteral("WBTwo"));
    m_control = new WebBrowserControl(m_view, windows.profile());
    m_control->openWindow = [&windows] { return windows.openPopUp(); };
    m_rules = std::make_unique<BrowserTwo>(ctx, *m_control, *this, lists);
    m_links = std::make_unique<WbtLinks>(ctx, *m_rules, *this, windows);
    m_quickScan = std::make_unique<WbtQuickScan>(ctx, *m_rules);
    ControlBinder::bindCaption(m_rules->form, this);
    buildControls();
    buildMenus();
    windows.browsers().addOwn(this, [this] { close(); });
    // The page takes the first focus: an input of the rows would hold the
    // auto walk from the start.
    m_view->setFocus();
    m_rules->Load();
}

frmWBTwo::~frmWBTwo() = default;

void frmWBTwo::buildControls()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_menuBar = new QMenuBar(this);
    layout->setMenuBar(m_menuBar);
    layout->addWidget(buildServerRow());
    layout->addWidget(buildButtonRow());
    layout->addWidget(buildListRow());
    m_addressBar = new QLineEdit(this);
    m_addressBar->setAccessibleName(tr("Address"));
    ControlBinder::bind(m_rules->txtAddressBar, m_addressBar);
    connect(m_addressBar, &QLineEdit::returnPressed, this, [this] { m_rules->AddressBarKey(13); });
    connect(m_addressBar, &QLineEdit::textEdited, this, [this] { m_rules->AddressBarKey(0); });
    watchFocus(m_addressBar);
    layout->addWidget(m_addressBar);
    layout->addWidget(m_view, 1);
    buildStatusBar(layout);
}

QWidget* frmWBTwo::row(Control& visibility)
{
    auto* widget = new QWidget(this);
    widget->setObjectName(visibility.name());
    auto show = [widget, &visibility] { widget->setVisible(visibility.isVisible()); };
    show();
    connect(&visibility, &Control::viewChanged, widget, show);
    auto* layout = new QHBoxLayout(widget);
    layout->setContentsMargins(3, 2, 3, 2);
    layout->setSpacing(3);
    return widget;
}

namespace {
QComboBox* combo(ListControl& model, const QString& accessibleName, QWidget* parent)
{
    auto* box = new QComboBox(parent);
    ControlBinder::bind(model, box);
    box->setAccessibleName(accessibleName);
    box->setToolTip(accessibleName);
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    return box;
}

QPushButton* button(Control& model, QWidget* parent)
{
    auto* push = new QPushButton(parent);
    push->setAutoDefault(false);
    ControlBinder::bind(model, push);
    // At the window's smallest width the rows hold more than the style's
    // roomy buttons: they may close in on their captions.
    push->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    push->setMinimumWidth(push->fontMetrics().horizontalAdvance(push->text()) + 8);
    parent->layout()->addWidget(push);
    return push;
}
} // namespace

QWidget* frmWBTwo::buildServerRow()
{
    QWidget* widget = row(*m_rules->picTools[BrowserTwo::ServerRow]);
    QComboBox* server = combo(m_rules->cmbServer, tr("Select a server"), widget);
    QComboBox* suburb = combo(m_rules->cboSWSuburbs, tr("Select a suburb"), widget);
    widget->layout()->addWidget(server);
    widget->layout()->addWidget(suburb);
    static_cast<QHBoxLayout*>(widget->layout())->addStretch(1);
    watchFocus(server);
    watchFocus(suburb);
    return widget;
}

QWidget* frmWBTwo::buildButtonRow()
{
    QWidget* widget = row(*m_rules->picTools[BrowserTwo::ButtonRow]);
    auto* bar = new QSlider(Qt::Horizontal, widget);
    ControlBinder::bind(m_rules->hscrWBT, bar);
    bar->setAccessibleName(tr("Position in the word list"));
    // One position a click on the track, as the scroll bar it stands for.
    bar->setPageStep(1);
    bar->setMinimumWidth(80);
    widget->layout()->addWidget(bar);
    watchFocus(bar);
    for (Control* tool : m_rules->cmdWBTTools)
        button(*tool, widget);
    return widget;
}

QWidget* frmWBTwo::buildListRow()
{
    QWidget* widget = row(*m_rules->picTools[BrowserTwo::ListRow]);
    QComboBox* lists = combo(m_rules->cboLists, tr("Select a saved site name list"), widget);
    lists->setMinimumContentsLength(6);
    widget->layout()->addWidget(lists);
    watchFocus(lists);
    for (Control* list : m_rules->cmdLists)
        button(*list, widget);
    button(m_rules->cmdUnload, widget);
    buildQuickScan(widget);
    return widget;
}

// The scan's button, and its progress while it runs.
void frmWBTwo::buildQuickScan(QWidget* row)
{
    button(m_quickScan->cmdQuickScan, row);
    auto* bar = new QProgressBar(row);
    bar->setObjectName(QStringLiteral("prgQuickScan"));
    bar->setAccessibleName(tr("Quick scan progress"));
    bar->setTextVisible(false);
    bar->setMaximumWidth(120);
    auto* line = new QLabel(row);
    ControlBinder::bind(m_quickScan->lblQuickScan, line);
    auto show = [bar, line] { bar->setVisible(line->isVisibleTo(line->parentWidget())); };
    connect(&m_quickScan->lblQuickScan, &Control::viewChanged, bar, show);
    connect(m_quickScan.get(), &WbtQuickScan::progressChanged, bar, [bar](int done, int total) {
        bar->setRange(0, std::max(total, 1));
        bar->setValue(done);
    });
    row->layout()->addWidget(bar);
    row->layout()->addWidget(line);
    static_cast<QHBoxLayout*>(row->layout())->addStretch(1);
    show();
}

void frmWBTwo::buildStatusBar(QVBoxLayout* layout)
{
    auto* status = new QStatusBar(this);
    status->setObjectName(QStringLiteral("StatusBarWBT"));
    status->setSizeGripEnabled(false);
    for (int i = 1; i <= 3; ++i) {
        auto* panel = new QLabel(status);
        ControlBinder::bind(*m_rules->panels[i], panel);
        status->addWidget(panel, i == 1 ? 2 : 1);
    }
    layout->addWidget(status);
}

void frmWBTwo::buildMenus()
{
    BrowserTwo& r = *m_rules;
    auto entry = [this](QMenu* menu, const QString& name, const QString& text, auto slot) {
        QAction* action = menu->addAction(text);
        action->setObjectName(name);
        connect(action, &QAction::triggered, this, slot);
        return action;
    };
    QMenu* file = m_menuBar->addMenu(tr("&File"));
    file->setObjectName(QStringLiteral("mnuFile"));
    entry(file, "mnuFileSubs[0]", tr("Copy URL"), [this] { CopyUrlClick(); });
    entry(file, "mnuFileSubs[1]", tr("Save As"), [this] { SaveAsClick(); });
    entry(file, "mnuFileSubs[2]", tr("Exit"), [&r] { r.ExitClick(); });
    QMenu* tools = m_menuBar->addMenu(tr("&Tools"));
    tools->setObjectName(QStringLiteral("mnuTools"));
    for (Control* rowEntry : r.mnuToolsSubs)
        ControlBinder::bind(*rowEntry, tools->addAction(rowEntry->text()));
    tools->addSeparator();
    QAction* fileList =
        entry(tools, "mnuToolsSubs[4]", tr("Get File List"), [this] { m_windows.getFileList(); });
    fileList->setEnabled(m_windows.canGetFileList());
    entry(tools, "mnuToolsSubs[5]", tr("Reduce"), [this] { ReduceClick(); });
    entry(tools, "mnuQuickScan", tr("Quick scan"), [this] { m_quickScan->QuickScanClick(); });
    QMenu* navigation = m_menuBar->addMenu(tr("&Navigation"));
    navigation->setObjectName(QStringLiteral("mnuNavigation"));
    const int presses[] = {BrowserTwo::Next, BrowserTwo::Prev, BrowserTwo::Back, BrowserTwo::Stop};
    const QStringList steps = {tr("Next"), tr("Prev"), tr("Back"), tr("Stop")};
    for (int i = 0; i < 4; ++i)
        entry(navigation, QStringLiteral("mnuNavigationSubs[%1]").arg(i), steps[i],
              [&r, tool = presses[i]] { r.cmdWBTTools[tool]->click(); });
    QMenu* links = m_menuBar->addMenu(tr("&Links"));
    links->setObjectName(QStringLiteral("mnuLinks"));
    const QStringList saved = {tr("Save"), tr("View"), tr("Delete")};
    for (int i = 0; i < 3; ++i)
        entry(links, QStringLiteral("mnuLinksSubs[%1]").arg(i), saved[i],
              [&r, i] { r.cmdWBTTools[BrowserTwo::Save + i]->click(); });
    entry(links, "mnuLinksSubs[3]", tr("Favorites"), [this] { FavoritesClick(); });
    entry(links, "mnuLinksSubs[4]", tr("AltaVista"), [&r] { r.AltaVistaClick(); });
}

void frmWBTwo::watchFocus(QWidget* input)
{
    m_inputs.append(input);
    input->installEventFilter(this);
}

bool frmWBTwo::eventFilter(QObject* watched, QEvent* event)
{
    auto* widget = qobject_cast<QWidget*>(watched);
    if (widget && m_inputs.contains(widget)) {
        if (event->type() == QEvent::FocusIn) {
            m_rules->InputFocus(true);
            if (widget == m_addressBar)
                QTimer::singleShot(0, m_addressBar, &QLineEdit::selectAll);
        } else if (event->type() == QEvent::FocusOut) {
            m_rules->InputFocus(false);
        }
    }
    return QWidget::eventFilter(watched, event);
}

void frmWBTwo::closeEvent(QCloseEvent* event)
{
    // A scan still running ends with the window, without its offer.
    m_quickScan->scan().blockSignals(true);
    m_quickScan->scan().stop();
    m_rules->Unload();
    m_windows.browsers().remove(this);
    QWidget::closeEvent(event);
}

void frmWBTwo::placeWindow(const QString& left, const QString& top, const QString& height,
                           const QString& width)
{
    PlaceWindow(this, m_ctx.state, left, top, height, width, false, 0);
}

QRect frmWBTwo::screenTwips() const
{
    return PixelsToTwips(AvailableScreen());
}

QRect frmWBTwo::windowTwips() const
{
    return PixelsToTwips(QRect(pos(), size()));
}

// The layout stacks the rows shown; the window keeps its smallest size.
void frmWBTwo::stackRows()
{
    if (layout())
        layout()->activate();
}

void frmWBTwo::closeWindowsAfter(int keep)
{
    m_windows.browsers().quitFrom(keep);
}

void frmWBTwo::unloadLinkWindows()
{
    m_windows.unloadLinkWindows();
}

void frmWBTwo::mainCall(GeoCitiesCall code)
{
    m_windows.mainCall(code);
}

void frmWBTwo::clearTopmost()
{
    m_windows.clearTopmost();
}

void frmWBTwo::CopyUrlClick()
{
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    clipboard->setText(m_rules->CurrentUrl);
}

void frmWBTwo::SaveAsClick()
{
    PageCommands::SaveAs(*m_control, m_ctx.prompts, m_ctx.state.gstrDataPath);
}

void frmWBTwo::ReduceClick()
{
    showNormal();
    resize(twipsToPixels(WindowPlace::MinWidth), twipsToPixels(WindowPlace::MinHeight));
}

void frmWBTwo::FavoritesClick()
{
    PageCommands::AddFavorite(*m_control, m_ctx.state.gstrDataPath);
}
