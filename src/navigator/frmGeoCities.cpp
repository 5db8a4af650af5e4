#include "frmGeoCities.h"

#include "NeighborhoodPictures.h"
#include "core/AppContext.h"
#include "core/ControlBinder.h"
#include "core/WindowPlace.h"
#include "frmWBONote.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QSlider>
#include <QToolButton>

namespace {
QLabel* caption(const QString& name, const QString& text, QWidget* parent, QWidget* buddy)
{
    auto* label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setBuddy(buddy);
    return label;
}
} // namespace

frmGeoCities::frmGeoCities(AppContext& ctx, NavigatorWindows& windows)
    : m_ctx(ctx), m_windows(windows), m_nav(ctx, *this, windows)
{
    setObjectName(QStringLiteral("frmGeoCities"));
    setAttribute(Qt::WA_QuitOnClose, false);
    ControlBinder::bindCaption(m_nav.controls().form, this);
    buildControls();
    buildMenus();
    adjustSize();
    setFixedSize(sizeHint());
    // Made before the load's clamp, so that the frame counts where the
    // window system already knows it.
    create();
    m_nav.Load();
}

frmGeoCities::~frmGeoCities() = default;

void frmGeoCities::buildControls()
{
    NavigatorControls& c = m_nav.controls();
    auto* central = new QWidget(this);
    auto* grid = new QGridLayout(central);
    grid->setContentsMargins(8, 8, 8, 8);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(5);

    m_picture = new QLabel(central);
    m_picture->setObjectName(c.picNeighborhood.name());
    m_picture->setFixedSize(QSize(NeighborhoodPictures::Size + 4, NeighborhoodPictures::Size + 4));
    m_picture->setFrameShape(QFrame::StyledPanel);
    m_picture->setAlignment(Qt::AlignCenter);
    m_picture->setCursor(Qt::PointingHandCursor);
    m_picture->setToolTip(tr("Click here to visit the Neighborhood"));
    m_picture->installEventFilter(this);
    connect(&c.picNeighborhood, &Control::viewChanged, this, &frmGeoCities::showPicture);
    showPicture();
    grid->addWidget(m_picture, 0, 0, 3, 1, Qt::AlignTop);

    auto* neighborhood = new QComboBox(central);
    auto* suburb = new QComboBox(central);
    neighborhood->setMinimumWidth(190);
    neighborhood->setMaxVisibleItems(20);
    suburb->setMaxVisibleItems(20);
    ControlBinder::bind(c.cmbNeighborhood, neighborhood);
    ControlBinder::bind(c.cmbSuburb, suburb);
    // A screen reader names each list, the slider and the address box by its
    // label, or by an accessible name where no label stands beside it.
    grid->addWidget(caption("lblneighborhood", tr("Neighb"), central, neighborhood), 0, 1);
    grid->addWidget(neighborhood, 0, 2, 1, 3);
    grid->addWidget(caption("lblSuburb", tr("Suburb"), central, suburb), 1, 1);
    grid->addWidget(suburb, 1, 2, 1, 3);

    auto* prefix = new QComboBox(central);
    auto* suffix = new QComboBox(central);
    prefix->setMaxVisibleItems(20);
    suffix->setMaxVisibleItems(20);
    ControlBinder::bind(c.cmbHouseNumberPrefix, prefix);
    ControlBinder::bind(c.cmbHouseNumberSuffix, suffix);
    auto* slider = new QSlider(Qt::Horizontal, central);
    slider->setPageStep(100);
    ControlBinder::bind(c.sldrHouseNumber, slider);
    suffix->setAccessibleName(tr("House number, last two digits"));
    slider->setAccessibleName(tr("House number"));
    grid->addWidget(caption("Label1", tr("House"), central, prefix), 2, 1);
    grid->addWidget(prefix, 2, 2);
    grid->addWidget(suffix, 2, 3);
    grid->addWidget(slider, 2, 4);

    auto* comment = new QLabel(central);
    comment->setTextFormat(Qt::PlainText);
    comment->setWordWrap(true);
    comment->setMinimumHeight(comment->fontMetrics().height() * 2 + 4);
    QFont italic = comment->font();
    italic.setItalic(true);
    comment->setFont(italic);
    ControlBinder::bind(c.lblComment, comment);
    grid->addWidget(comment, 3, 0, 1, 5);

    auto* address = new QLineEdit(central);
    ControlBinder::bind(c.txtFullAddress, address);
    address->setAccessibleName(tr("Address"));
    grid->addWidget(address, 4, 0, 1, 5);

    auto* buttons = new QHBoxLayout;
    for (Control* model : {&c.cmdPrevious, &c.cmdNext, &c.cmdOpenSite, &c.cmdGoBack, &c.cmdQuite}) {
        auto* button = new QPushButton(central);
        button->setAutoDefault(false);
        ControlBinder::bind(*model, button);
        buttons->addWidget(button);
    }
    grid->addLayout(buttons, 5, 0, 1, 5);

    auto* saved = new QHBoxLayout;
    auto* savedLinks = new QComboBox(central);
    savedLinks->setMaxVisibleItems(20);
    savedLinks->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    savedLinks->setMinimumContentsLength(20);
    ControlBinder::bind(c.cmbSavedLinks, savedLinks);
    savedLinks->setAccessibleName(tr("Saved links"));
    saved->addWidget(savedLinks, 1);
    // Delete shows beside Save on the inside, so Save (Return while a link
    // is on show) stays where it stood.
    for (Control* model : {&c.cmdSavedLinks1, &c.cmdSavedLinks0}) {
        auto* button = new QPushButton(central);
        button->setAutoDefault(false);
        ControlBinder::bind(*model, button);
        saved->addWidget(button);
    }
    grid->addLayout(saved, 6, 0, 1, 5);
    grid->setColumnStretch(4, 1);
    setCentralWidget(central);
}

QAction* frmGeoCities::addEntry(QMenu* menu, const QString& name, const QString& text,
                                void (Navigator::*slot)())
{
    QAction* action = menu->addAction(text);
    action->setObjectName(name);
    if (slot)
        connect(action, &QAction::triggered, &m_nav, slot);
    return action;
}

void frmGeoCities::buildMenus()
{
    NavigatorControls& c = m_nav.controls();
    auto bound = [](QMenu* menu, Control& model) {
        QAction* action = menu->addAction(model.text());
        ControlBinder::bind(model, action);
        return action;
    };
    auto show = [this](ProgramWindow w) { return [this, w] { m_nav.ShowProgramWindow(w); }; };

    m_fileMenu = menuBar()->addMenu(tr("&File"));
    m_fileMenu->setObjectName(QStringLiteral("mnuFile"));
    QMenu* stop = m_fileMenu->addMenu(tr("Sto&p"));
    stop->setObjectName(QStringLiteral("mnuStop"));
    bound(stop, c.mnuAutoNav);
    bound(stop, c.mnuRandNav);
    bound(m_fileMenu, c.mnuGeoTree);
    bound(m_fileMenu, c.mnuJapan);
    m_fileMenu->addSeparator();
    // DatabaseAction(3): no other window shows, so no on-top is released.
    connect(addEntry(m_fileMenu, "mnuImportLinks", tr("&Import Links"), nullptr),
            &QAction::triggered, this, [this] { m_windows.showWindow(ProgramWindow::LinkImport); });
    connect(addEntry(m_fileMenu, "mnuExport", tr("&Export Links"), nullptr), &QAction::triggered,
            this, show(ProgramWindow::Export));
    m_fileMenu->addSeparator();
    connect(addEntry(m_fileMenu, "mnuExit", tr("E&xit"), nullptr), &QAction::triggered, this,
            [this] { m_nav.Unload(); });

    QMenu* tools = menuBar()->addMenu(tr("&Tools"));
    tools->setObjectName(QStringLiteral("mnuSettings"));
    bound(tools, c.mnuOnTop);
    connect(addEntry(tools, "mnuPublish", tr("Publish Files"), nullptr), &QAction::triggered, this,
            show(ProgramWindow::GeoFtp));
    bound(tools, c.mnuOptions);
    QMenu* pages = tools->addMenu(tr("Open pages from"));
    pages->setObjectName(QStringLiteral("mnuPagesFrom"));
    ArchiveMenu& archive = m_nav.archiveMenu();
    for (Control* entry :
         {&archive.mnuPagesOriginal, &archive.mnuPagesArchive, &archive.mnuPagesGallery,
          &archive.mnuPagesOoCities, &archive.mnuPagesMirror})
        bound(pages, *entry);
    pages->addSeparator();
    bound(pages, archive.mnuArchiveYear)->setCheckable(false);
    pages->addSeparator();
    CapturedWalk& walk = m_nav.capturedWalk();
    bound(pages, walk.mnuWalkCaptured);
    bound(pages, walk.mnuRefreshCaptures)->setCheckable(false);
    buildCaptureProgress();

    QMenu* xtras = menuBar()->addMenu(tr("Xtras"));
    xtras->setObjectName(QStringLiteral("mnuXtras"));
    connect(addEntry(xtras, "mnuBrowserTwo", tr("&Web Browser Two"), nullptr), &QAction::triggered,
            this, show(ProgramWindow::BrowserTwo));
    bound(xtras, c.mnuCache);
    connect(&c.mnuCache, &Control::clicked, this, show(ProgramWindow::Cache));
    connect(addEntry(xtras, "mnuScript", tr("Create a web Page"), nullptr), &QAction::triggered,
            this, show(ProgramWindow::Script));
    connect(addEntry(xtras, "mnuNetPic", tr("Load Pictures from file list"), nullptr),
            &QAction::triggered, this, show(ProgramWindow::NetPics));
    addEntry(xtras, "mnuInetGet", tr("Download files from file list"), &Navigator::InetGetClick);

    QMenu* help = menuBar()->addMenu(tr("&Help"));
    help->setObjectName(QStringLiteral("mnuHelp"));
    QMenu* vorlan = help->addMenu(tr("Vorlan"));
    vorlan->setObjectName(QStringLiteral("mnuVorlan"));
    addEntry(vorlan, "mnuVorlan2", tr("Help"), &Navigator::HelpClick);
    addEntry(vorlan, "mnuVorlan3", tr("Home"), &Navigator::HomeClick);
    QMenu* geocities = help->addMenu(tr("GeoCities"));
    geocities->setObjectName(QStringLiteral("mnuGeoCitesmain"));
    addEntry(geocities, "mnuGeoCities", tr("GeoCities"), &Navigator::GeoCitiesClick);
    addEntry(geocities, "mnuGeoSearch", tr("GeoSearch"), &Navigator::GeoSearchClick);
    addEntry(geocities, "mnuGeoChat", tr("GeoChat"), &Navigator::GeoChatClick);
    connect(addEntry(help, "mnuAbout", tr("&About"), nullptr), &QAction::triggered, this,
            show(ProgramWindow::About));

    // Entries whose windows this build does not have stay visible but idle.
    const QList<QPair<const char*, ProgramWindow>> entries = {
        {"mnuImportLinks", ProgramWindow::LinkImport}, {"mnuExport", ProgramWindow::Export},
        {"mnuPublish", ProgramWindow::GeoFtp},         {"mnuBrowserTwo", ProgramWindow::BrowserTwo},
        {"mnuScript", ProgramWindow::Script},          {"mnuNetPic", ProgramWindow::NetPics},
        {"mnuInetGet", ProgramWindow::Inetget}};
    for (const auto& [name, window] : entries) {
        if (auto* action = menuBar()->findChild<QAction*>(QLatin1String(name)))
            action->setEnabled(m_windows.hasWindow(window));
    }
    c.mnuCache.setEnabled(m_windows.hasWindow(ProgramWindow::Cache));
    c.mnuGeoTree.setEnabled(m_windows.hasWindow(ProgramWindow::GeoTree));
    c.mnuOptions.setEnabled(m_windows.hasWindow(ProgramWindow::Options));
}

// The filling of the capture index shows at the menu bar's corner, so that
// the window keeps its fixed size.
void frmGeoCities::buildCaptureProgress()
{
    CapturedWalk& walk = m_nav.capturedWalk();
    auto* corner = new QWidget(this);
    auto* row = new QHBoxLayout(corner);
    row->setContentsMargins(0, 0, 4, 0);
    auto* bar = new QProgressBar(corner);
    bar->setObjectName(walk.prgCaptures.name());
    bar->setRange(0, 0);
    bar->setMaximumWidth(60);
    bar->setAccessibleName(tr("Capture index"));
    auto* stop = new QToolButton(corner);
    ControlBinder::bind(walk.cmdStopCaptures, stop);
    row->addWidget(bar);
    row->addWidget(stop);
    auto show = [bar, stop, &walk] {
        bar->setToolTip(walk.prgCaptures.text());
        bar->setVisible(walk.prgCaptures.isVisible());
        stop->setVisible(walk.cmdStopCaptures.isVisible());
    };
    connect(&walk.prgCaptures, &Control::viewChanged, bar, show);
    connect(&walk.prgCaptures, &Control::changed, bar, show);
    show();
    menuBar()->setCornerWidget(corner, Qt::TopRightCorner);
}

void frmGeoCities::showPicture()
{
    const PictureControl& pic = m_nav.controls().picNeighborhood;
    m_picture->setPixmap(NeighborhoodPictures::picture(pic.japanList(), pic.entry()));
}

bool frmGeoCities::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_picture && event->type() == QEvent::MouseButtonRelease)
        m_nav.controls().picNeighborhood.click();
    return QMainWindow::eventFilter(watched, event);
}

void frmGeoCities::contextMenuEvent(QContextMenuEvent* event)
{
    m_fileMenu->popup(event->globalPos());
}

void frmGeoCities::closeEvent(QCloseEvent* event)
{
    if (!m_ending) {
        event->ignore();
        m_nav.Unload();
        return;
    }
    QMainWindow::closeEvent(event);
}

QRect frmGeoCities::screenTwips() const
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    const QRect area = screen ? screen->availableGeometry() : QRect(0, 0, 1024, 768);
    return QRect(pixelsToTwips(area.left()), pixelsToTwips(area.top()), pixelsToTwips(area.width()),
                 pixelsToTwips(area.height()));
}

QRect frmGeoCities::windowTwips() const
{
    const QRect frame = frameGeometry();
    return QRect(pixelsToTwips(frame.left()), pixelsToTwips(frame.top()),
                 pixelsToTwips(frame.width()), pixelsToTwips(frame.height()));
}

void frmGeoCities::moveWindowTwips(int left, int top)
{
    move(twipsToPixels(left), twipsToPixels(top));
}

void frmGeoCities::setWindowOnTop(bool onTop)
{
    const bool shown = isVisible();
    setWindowFlag(Qt::WindowStaysOnTopHint, onTop);
    if (shown)
        show();
}

void frmGeoCities::showNoteDialog()
{
    auto title = [this] { return m_windows.browserTitle(); };
    frmWBONote note(m_ctx, m_nav.savedLinks(), title, this);
    note.exec();
}

void frmGeoCities::endProgram()
{
    m_ending = true;
    close();
    QCoreApplication::exit(0);
}
