#include "frmWBOne.h"

#include "BrowserOneWindows.h"
#include "PageCommands.h"
#include "WebBrowserControl.h"
#include "WebPage.h"
#include "core/AppContext.h"
#include "core/ControlBinder.h"
#include "core/PlaceWindow.h"
#include "core/WindowPlace.h"
#include "navigator/MainWindowCalls.h"
#include "navigator/NavigatorControls.h"
#include "navigator/PageSources.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <QWebEngineView>

namespace {
// Whether a key edits the text: one that types a character, by the rule of
// Qt's own text boxes, Backspace and Delete, and the shortcuts that cut or
// paste. Arrows, Shift, function keys and Ctrl's other shortcuts do not.
bool editsText(const QKeyEvent& key)
{
    if (key.key() == Qt::Key_Backspace || key.key() == Qt::Key_Delete ||
        key.matches(QKeySequence::Paste) || key.matches(QKeySequence::Cut))
        return true;
    const Qt::KeyboardModifiers mods = key.modifiers() & ~Qt::KeypadModifier;
    if (key.text().isEmpty() || mods == Qt::ControlModifier ||
        mods == (Qt::ControlModifier | Qt::ShiftModifier))
        return false;
    const QChar first = key.text().at(0);
    return first.isPrint() || first.isSurrogate();
}
} // namespace

frmWBOne::frmWBOne(AppContext& ctx, MainWindowCalls& main, BrowserOneWindows& windows)
    : m_ctx(ctx), m_windows(windows)
{
    setObjectName(QStringLiteral("frmWBOne"));
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    setMinimumSize(twipsToPixels(WindowPlace::MinWidth), twipsToPixels(WindowPlace::MinHeight));
    resize(twipsToPixels(WindowPlace::MinWidth), twipsToPixels(WindowPlace::MinHeight));
    setAutoFillBackground(true);
    buildControls();
    m_control->page()->linkTarget = [&main](const QString& url) {
        return main.pageSources().rewrite(url).target;
    };
    m_rules = std::make_unique<BrowserOne>(ctx, main, *m_control, *this);
    m_links = std::make_unique<LinksPanel>(ctx, main, *m_rules, windows);
    ControlBinder::bindCaption(m_rules->form, this);
    ControlBinder::bind(m_rules->txtAddressBar, m_addressBar);
    ControlBinder::bind(m_rules->cmdNext, m_next);
    buildMenu();
    // The cache manager's entry is the navigator's own, pressed from here.
    QAction* cache = m_menu->findChild<QMenu*>(QStringLiteral("mnuXtras"))->addAction(QString());
    ControlBinder::bind(main.controls().mnuCache, cache);
    cache->setCheckable(false);
    connect(m_rules.get(), &BrowserOne::resizeRequested, this, [this] { resize(size()); });
    m_rules->Load();
}

frmWBOne::~frmWBOne() = default;

void frmWBOne::buildControls()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto* bar = new QHBoxLayout;
    bar->setContentsMargins(3, 3, 3, 3);
    bar->setSpacing(3);
    m_addressBar = new QLineEdit(this);
    m_addressBar->setAccessibleName(tr("Address"));
    m_addressBar->installEventFilter(this);
    m_addressBar->setMouseTracking(true);
    m_next = new QPushButton(this);
    m_next->setAutoDefault(false);
    bar->addWidget(m_addressBar, 1);
    bar->addWidget(m_next);
    layout->addLayout(bar);

    m_view = new QWebEngineView(this);
    m_view->setObjectName(QStringLiteral("WBOne"));
    layout->addWidget(m_view, 1);
    m_control = new WebBrowserControl(m_view, m_windows.profile());
    m_control->openWindow = [this] { return m_windows.openPopUp(); };

    m_windows.browsers().addOwn(this, [this] { close(); });
    // The hover menu answers the window's own strip around the address bar,
    // never the page: there it would cover the links a user clicks.
    setMouseTracking(true);
}

void frmWBOne::buildMenu()
{
    m_menu = new QMenu(tr("&File"), this);
    m_menu->setObjectName(QStringLiteral("mnuCopy"));
    BrowserOne& r = *m_rules;
    auto entry = [this](QMenu* menu, const char* name, const QString& text, auto slot) {
        QAction* action = menu->addAction(text);
        action->setObjectName(QLatin1String(name));
        connect(action, &QAction::triggered, this, slot);
        return action;
    };
    entry(m_menu, "mnuWB1Stop", tr("Stop"), [&r] { r.StopClick(); });
    entry(m_menu, "mnuNext", tr("Go &Next"), [&r] { r.NextClick(); });
    entry(m_menu, "mnuBack", tr("Go &Back"), [&r] { r.BackClick(); });
    ControlBinder::bind(r.mnuAutoNav, m_menu->addAction(r.mnuAutoNav.text()));
    ControlBinder::bind(r.mnuRandNav, m_menu->addAction(r.mnuRandNav.text()));
    entry(m_menu, "mnuVorlan", tr("Vorlan"), [this] { VorlanClick(); });
    ControlBinder::bind(r.mnuSaved, m_menu->addAction(r.mnuSaved.text()));
    QMenu* xtras = m_menu->addMenu(tr("Xtras"));
    xtras->setObjectName(QStringLiteral("mnuXtras"));
    entry(xtras, "mnuFavorites", tr("AddFavorite"), [this] { FavoritesClick(); });
    entry(xtras, "mnuGetFileLst", tr("Get File List"), [] {})->setEnabled(false);
    entry(xtras, "mnuSaveAs", tr("SaveAs"), [this] { SaveAsClick(); });
    entry(xtras, "mnuCopyLink", tr("Copy URL"), [this] { CopyLinkClick(); });
    entry(xtras, "mnuResize", tr("Reduce"), [this] { ResizeClick(); });
    ControlBinder::bind(r.mnuTop, xtras->addAction(r.mnuTop.text()));
    QMenu* search = m_menu->addMenu(tr("Search"));
    search->setObjectName(QStringLiteral("mnuSearch"));
    const QStringList engines = {"AltaVista", "HotBot",   "SwBoard", "Lycos",
                                 "Excite",    "InfoSeek", "Yahoo"};
    for (int i = 0; i < engines.size(); ++i) {
        QAction* action = search->addAction(engines[i]);
        action->setObjectName(QStringLiteral("mnuLinks[%1]").arg(i));
        connect(action, &QAction::triggered, this, [&r, i] { r.SearchClick(i); });
    }
    entry(m_menu, "mnuExit", tr("E&xit"), [&r] { r.ExitClick(); });
}

void frmWBOne::hover(const QPoint& pos, bool overAddressBar)
{
    if (m_menu->isVisible())
        return;
    if (overAddressBar && m_rules->AddressBarHasFocus)
        return;
    const QPoint inWindow = overAddressBar ? m_addressBar->mapTo(this, pos) : pos;
    if (!BrowserOne::HoverMenuAt(inWindow.x(), inWindow.y(), m_view->width(), m_view->height(),
                                 overAddressBar))
        return;
    const QPoint global = mapToGlobal(inWindow);
    const QSize size = m_menu->sizeHint();
    m_menu->popup(global - QPoint(size.width() / 2, size.height() / 2));
}

bool frmWBOne::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_addressBar) {
        switch (event->type()) {
        case QEvent::KeyPress: {
            const auto* key = static_cast<QKeyEvent*>(event);
            const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
            if (enter)
                m_rules->AddressBarKey(13);
            else if (editsText(*key))
                m_rules->AddressBarKey(key->text().isEmpty() ? 8 : key->text().at(0).unicode());
            return enter;
        }
        case QEvent::MouseButtonPress:
            m_rules->AddressBarClick();
            break;
        case QEvent::FocusIn:
            m_rules->AddressBarHasFocus = true;
            break;
        case QEvent::FocusOut:
            m_rules->AddressBarHasFocus = false;
            break;
        case QEvent::MouseMove:
            hover(static_cast<QMouseEvent*>(event)->position().toPoint(), true);
            break;
        default:
            break;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void frmWBOne::mouseMoveEvent(QMouseEvent* event)
{
    hover(event->position().toPoint(), false);
    QWidget::mouseMoveEvent(event);
}

void frmWBOne::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        m_rules->WindowKey(13);
    else if (event->key() == Qt::Key_Space)
        m_rules->WindowKey(32);
    QWidget::keyPressEvent(event);
}

void frmWBOne::closeEvent(QCloseEvent* event)
{
    m_rules->Unload();
    m_windows.browsers().remove(this);
    QWidget::closeEvent(event);
}

void frmWBOne::placeWindow(const QString& left, const QString& top, const QString& height,
                           const QString& width)
{
    PlaceWindow(this, m_ctx.state, left, top, height, width, false, m_windows.treeWidthTwips());
}

QRect frmWBOne::screenTwips() const
{
    return PixelsToTwips(AvailableScreen());
}

QRect frmWBOne::windowTwips() const
{
    return PixelsToTwips(QRect(pos(), size()));
}

void frmWBOne::setWindowOnTop(bool onTop)
{
    const bool shown = isVisible();
    setWindowFlag(Qt::WindowStaysOnTopHint, onTop);
    if (shown)
        show();
}

void frmWBOne::showWalkColours(Wander::Mode mode)
{
    QPalette bar = QGuiApplication::palette();
    QPalette window = QGuiApplication::palette();
    switch (mode) {
    case Wander::Mode::AutoNav:
        bar.setColor(QPalette::Base, QColor(180, 0, 0));
        bar.setColor(QPalette::Text, Qt::white);
        window.setColor(QPalette::Window, QColor(255, 0, 0));
        break;
    case Wander::Mode::RandNav:
        bar.setColor(QPalette::Base, QColor(0, 0, 180));
        bar.setColor(QPalette::Text, Qt::white);
        window.setColor(QPalette::Window, QColor(0, 0, 255));
        break;
    case Wander::Mode::Off:
        bar.setColor(QPalette::Text, Qt::black);
        window.setColor(QPalette::Window, window.color(QPalette::Button));
        break;
    }
    m_addressBar->setPalette(bar);
    m_addressBar->setReadOnly(mode != Wander::Mode::Off);
    setPalette(window);
}

void frmWBOne::closeWindowsAfter(int keep)
{
    m_windows.browsers().quitFrom(keep);
}

void frmWBOne::unloadLinksPanel()
{
    m_windows.closePanel();
}

void frmWBOne::VorlanClick()
{
    if (m_ctx.state.gblnWBOneOnTop)
        m_rules->frmWBOCalls(WBOCall::OnTop);
    QWidget* main = m_windows.mainWindow();
    if (!main)
        return;
    if (main->isMinimized())
        main->showNormal();
    main->show();
    const QRect screen = AvailableScreen();
    main->move(screen.left() + screen.width() - main->frameGeometry().width(),
               screen.top() + (screen.height() - main->frameGeometry().height()) / 2);
    main->raise();
    main->activateWindow();
}

void frmWBOne::ResizeClick()
{
    showNormal();
    if (m_ctx.state.gblnTreeShown)
        move(twipsToPixels(m_windows.treeWidthTwips() + 5), y());
    resize(twipsToPixels(WindowPlace::MinWidth), twipsToPixels(WindowPlace::MinHeight));
}

void frmWBOne::CopyLinkClick()
{
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    clipboard->setText(m_rules->CopyUrlText());
}

void frmWBOne::SaveAsClick()
{
    PageCommands::SaveAs(*m_control, m_ctx.prompts, m_ctx.state.gstrDataPath);
}

void frmWBOne::FavoritesClick()
{
    PageCommands::AddFavorite(*m_control, m_ctx.state.gstrDataPath);
}
