#include "frmCache.h"

#include "FolderTree.h"
#include "core/AppContext.h"
#include "core/ControlBinder.h"
#include "core/PlaceWindow.h"
#include "core/SettingsKeys.h"
#include "core/WindowPlace.h"
#include "frmOutPutDir.h"
#include "frmProgress.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {
// The size the window opens with when no place is stored, in twips.
constexpr int DefaultWidth = 9000;
constexpr int DefaultHeight = 6300;

// The list takes no keyboard search: a letter typed would move the
// selection that an action works on.
class FileList : public QListView
{
public:
    using QListView::QListView;
    void keyboardSearch(const QString&) override {}
};

// An option button of a group whose rules decide which one is set: a click
// reports to the model, and the button then shows the model's check.
QRadioButton* option(Control& model, QWidget* parent)
{
    auto* button = new QRadioButton(parent);
    button->setObjectName(model.name());
    button->setAutoExclusive(false);
    auto show = [&model, button] {
        button->setText(model.text());
        button->setToolTip(model.toolTip());
        button->setChecked(model.isChecked());
        button->setEnabled(model.isEnabled());
    };
    show();
    QObject::connect(&model, &Control::viewChanged, button, show);
    QObject::connect(button, &QRadioButton::clicked, &model, [&model, show] {
        model.click();
        show();
    });
    return button;
}

QPushButton* button(Control& model, QWidget* parent)
{
    auto* b = new QPushButton(parent);
    b->setAutoDefault(false);
    ControlBinder::bind(model, b);
    return b;
}
} // namespace

frmCache::frmCache(AppContext& ctx, Links links) : m_ctx(ctx), m_links(std::move(links))
{
    setObjectName(QStringLiteral("frmCache"));
    setAttribute(Qt::WA_QuitOnClose, false);
    setMinimumSize(twipsToPixels(WindowPlace::MinWidth), twipsToPixels(WindowPlace::MinHeight));
    m_rules = std::make_unique<CacheScan>(ctx, *this, m_links.profileCache);
    if (m_links.actions)
        m_actions = m_links.actions(ctx, m_rules->state, *this);
    ControlBinder::bindCaption(m_rules->form, this);
    buildControls();
    qApp->installEventFilter(this);
    m_rules->Load();
    place();
}

frmCache::~frmCache() = default;

void frmCache::buildControls()
{
    CacheScan& r = *m_rules;
    auto* grid = new QGridLayout(this);
    m_dir = new FolderTree(this);
    m_dir->bind(r.dirCache);
    m_dir->setAccessibleName(tr("Folder"));
    grid->addWidget(m_dir, 0, 0, 2, 1);

    m_list = new FileList(this);
    m_list->setModel(&r.lstCache());
    m_list->setSelectionModel(&r.lstSelection());
    m_list->setObjectName(QStringLiteral("lstCache"));
    m_list->setAccessibleName(tr("Files found"));
    m_list->setToolTip(QStringLiteral(
        "Hold the Ctrl key and click to multi select or don't select for all files"));
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setUniformItemSizes(true);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->viewport()->installEventFilter(this);
    connect(&r.lstSelection(), &QItemSelectionModel::selectionChanged, &r,
            &CacheScan::lstCacheClick);
    connect(m_list, &QListView::doubleClicked, &r, &CacheScan::lstCacheDblClick);
    grid->addWidget(m_list, 0, 1);
    grid->addWidget(buildActions(), 0, 2, 2, 1);

    auto* search = new QHBoxLayout;
    auto* noSubs = new QCheckBox(this);
    ControlBinder::bind(r.chkNoSubs, noSubs);
    search->addWidget(noSubs);
    m_search = new QLineEdit(this);
    ControlBinder::bind(r.txtSearch, m_search);
    m_search->setAccessibleName(tr("Find in file names"));
    m_search->installEventFilter(this);
    search->addWidget(m_search, 1);
    grid->addLayout(search, 1, 1);
    grid->addWidget(buildExtensions(), 2, 0, 1, 3);

    auto* out = new QHBoxLayout;
    auto* outDir = new QLineEdit(this);
    ControlBinder::bind(r.txtOutDir, outDir);
    outDir->setAccessibleName(tr("Output folder"));
    out->addWidget(outDir, 1);
    out->addWidget(button(r.cmdNewOutDir, this));
    grid->addLayout(out, 3, 0, 1, 2);

    auto* picButtons = new QWidget(this);
    picButtons->setObjectName(QStringLiteral("picButtons"));
    auto* buttons = new QHBoxLayout(picButtons);
    buttons->setContentsMargins(0, 0, 0, 0);
    buttons->addWidget(button(r.cmdCache(0), picButtons));
    buttons->addWidget(button(r.cmdCache(1), picButtons));
    grid->addWidget(picButtons, 3, 2);
    grid->setColumnStretch(0, 2);
    grid->setColumnStretch(1, 3);
    grid->setRowStretch(0, 1);
}

QWidget* frmCache::buildActions()
{
    auto* picAction = new QWidget(this);
    picAction->setObjectName(QStringLiteral("picAction"));
    auto* column = new QVBoxLayout(picAction);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(1);
    auto* heading = new QLabel(picAction);
    ControlBinder::bind(m_rules->lblAction, heading);
    column->addWidget(heading);
    for (int i = 0; i < CacheScan::ActionCount; ++i)
        column->addWidget(option(m_rules->optAction(i), picAction));
    column->addStretch();
    return picAction;
}

QWidget* frmCache::buildExtensions()
{
    auto* row = new QWidget(this);
    auto* line = new QHBoxLayout(row);
    line->setContentsMargins(0, 0, 0, 0);
    for (int i = 1; i <= CacheScan::ExtCount; ++i)
        line->addWidget(option(m_rules->optExt(i), row));
    auto* other = new QLabel(row);
    ControlBinder::bind(m_rules->Label1, other);
    line->addWidget(other);
    m_ext = new QLineEdit(row);
    ControlBinder::bind(m_rules->txtExt, m_ext);
    m_ext->setMaximumWidth(80);
    m_ext->installEventFilter(this);
    other->setBuddy(m_ext);
    line->addWidget(m_ext);
    line->addStretch();
    return row;
}

void frmCache::place()
{
    const QRect area = AvailableScreen();
    const int left = (pixelsToTwips(area.width()) - DefaultWidth) / 2;
    const int top = (pixelsToTwips(area.height()) - DefaultHeight) / 2;
    auto read = [this](const char* key, int value) {
        return m_ctx.GetSetting(Sect::CacheManager, key, QString::number(value));
    };
    PlaceWindow(this, m_ctx.state, read(Key::CFWE_L, left), read(Key::CFWE_T, top),
                read(Key::CFWE_H, DefaultHeight), read(Key::CFWE_W, DefaultWidth), false,
                m_links.treeWidth ? m_links.treeWidth() : 0);
}

void frmCache::savePlace()
{
    auto save = [this](const char* key, int pixels) {
        m_ctx.SaveSetting(Sect::CacheManager, key, QString::number(pixelsToTwips(pixels)));
    };
    save(Key::CFWE_W, width());
    save(Key::CFWE_H, height());
    save(Key::CFWE_T, y());
    save(Key::CFWE_L, x());
}

void frmCache::FakeSub()
{
    show();
    raise();
    activateWindow();
    m_ctx.state.gblnCacheLoaded = true;
}

void frmCache::Unload()
{
    if (m_unloaded)
        return;
    m_unloaded = true;
    // A run still on the stack sees the stop at its next round.
    m_rules->state.StopRequested = true;
    if (m_actions)
        m_actions->FinishCacheAction();
    unloadProgress();
    unloadWait();
    if (m_links.unloaded)
        m_links.unloaded();
    savePlace();
    m_rules->Unload();
    qApp->removeEventFilter(this);
    close();
}

// The close box never closes this window; during a run it stops the run.
void frmCache::closeEvent(QCloseEvent* event)
{
    if (m_unloaded) {
        event->accept();
        return;
    }
    event->ignore();
    m_rules->QueryUnload();
}

bool frmCache::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::KeyPress || type == QEvent::ShortcutOverride ||
        type == QEvent::KeyRelease) {
        auto* widget = qobject_cast<QWidget*>(watched);
        if (widget && widget->window() == this && m_rules->keysDropped())
            return true;
        return false;
    }
    if (watched == m_list->viewport() && type == QEvent::MouseButtonPress &&
        static_cast<QMouseEvent*>(event)->button() == Qt::RightButton) {
        m_rules->lstCacheRightPress();
        return true;
    }
    if (type == QEvent::MouseButtonDblClick && watched == m_ext) {
        m_rules->txtExtDblClick();
        return true;
    }
    if (type == QEvent::MouseButtonDblClick && watched == m_search) {
        m_rules->txtSearchDblClick();
        return true;
    }
    return false;
}

int frmCache::listCount() const
{
    return m_rules->lstCache().rowCount();
}

QVector<int> frmCache::selectedRows() const
{
    QVector<int> rows;
    for (const QModelIndex& index : m_rules->lstSelection().selectedRows())
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

void frmCache::SaveCacheSettings()
{
    m_rules->SaveCacheSettings();
}

void frmCache::clearActionOptions()
{
    m_rules->clearActionOptions();
}

void frmCache::setControlsEnabled(bool enabled)
{
    m_rules->setControlsEnabled(enabled);
}

void frmCache::setTitle(const QString& title)
{
    m_rules->form.setText(title);
}

void frmCache::Increm(int percent)
{
    if (!m_progress)
        m_progress = std::make_unique<frmProgress>();
    m_progress->Increm(percent);
}

void frmCache::ResetCount()
{
    if (m_progress)
        m_progress->ResetCount();
}

void frmCache::unloadProgress()
{
    m_progress.reset();
}

void frmCache::unloadWait()
{
    if (m_links.unloadWait)
        m_links.unloadWait();
}

void frmCache::pumpEvents()
{
    QCoreApplication::processEvents();
}

void frmCache::pumpEvents(bool wait)
{
    QCoreApplication::processEvents(wait ? QEventLoop::WaitForMoreEvents : QEventLoop::AllEvents);
}

void frmCache::ListCacheFiles()
{
    m_rules->ListCacheFiles();
}

void frmCache::showGraphicsPages(const QStringList& pages)
{
    if (m_links.showPages)
        m_links.showPages(pages);
    Unload();
}

void frmCache::showOutPutDir(const QString& path)
{
    if (m_links.releaseOnTop)
        m_links.releaseOnTop();
    frmOutPutDir dialog([this](const QString& answer) { m_rules->PassVariable(answer); }, this);
    dialog.Fake(path);
}

void frmCache::openViewer(const QString& path)
{
    if (m_links.openViewer)
        m_links.openViewer(path);
}

bool frmCache::hasActions() const
{
    return m_actions != nullptr;
}

void frmCache::runAction()
{
    m_running = true;
    try {
        m_actions->RunCacheAction();
    } catch (const std::exception&) {
        // A failure that escaped the run's own error rule ends the run.
        m_actions->FinishCacheAction();
        m_rules->ListCacheFiles();
    }
    m_running = false;
}

void frmCache::unloadWindow()
{
    Unload();
}
