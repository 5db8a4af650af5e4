#include "frmNetPics.h"

#include "core/AppContext.h"
#include "core/ControlBinder.h"
#include "core/KeyAscii.h"
#include "core/PlaceWindow.h"
#include "core/SettingsKeys.h"
#include "core/WindowPlace.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {
// The place that PlaceWindow is given, in twips.
constexpr int Height = 2325;
constexpr int Width = 5000;

QLabel* label(const QString& name, const QString& text, QWidget* parent)
{
    auto* l = new QLabel(text, parent);
    l->setObjectName(name);
    return l;
}

} // namespace

frmNetPics::frmNetPics(AppContext& ctx, MainWindowCalls& main,
                       std::function<void(const QStringList&)> paging,
                       std::function<int()> treeWidth)
    : m_ctx(ctx), m_paging(std::move(paging)), m_treeWidth(std::move(treeWidth))
{
    setObjectName(QStringLiteral("frmNetPics"));
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    m_rules = std::make_unique<NetPic>(ctx, main, *this);
    ControlBinder::bindCaption(m_rules->form, this);
    buildControls();
    place();
    m_rules->Load();
}

frmNetPics::~frmNetPics() = default;

QLineEdit* frmNetPics::edit(Control& model, const QString& accessibleName)
{
    auto* e = new QLineEdit(this);
    e->setAccessibleName(accessibleName);
    ControlBinder::bind(model, e);
    return e;
}

void frmNetPics::buildControls()
{
    NetPic& r = *m_rules;
    auto* grid = new QGridLayout(this);
    auto button = [this](Control& model) {
        auto* b = new QPushButton(this);
        b->setAutoDefault(false);
        ControlBinder::bind(model, b);
        return b;
    };
    auto check = [this](Control& model) {
        auto* c = new QCheckBox(this);
        ControlBinder::bind(model, c);
        return c;
    };
    QLabel* heading = label(QString(), QString(), this);
    ControlBinder::bind(r.Label5, heading);
    grid->addWidget(heading, 0, 0, 1, 4);
    QLineEdit* autoFill = edit(r.txtAutoFill, r.Label5.text());
    connect(&r, &NetPic::autoFillWanted, autoFill, [autoFill] { autoFill->setFocus(); });
    heading->setBuddy(autoFill);
    grid->addWidget(autoFill, 1, 0, 1, 3);
    grid->addWidget(button(r.cmdNPAutoDrop), 1, 3);

    QLabel* inFile = label(QString(), QString(), this);
    ControlBinder::bind(r.Label3, inFile);
    grid->addWidget(inFile, 2, 0);
    grid->addWidget(edit(r.txtInFilePath, tr("InPut file")), 2, 1, 1, 2);
    grid->addWidget(button(r.cmdNetPicInFile), 2, 3);

    m_pref = edit(r.txtPref, tr("Prefix"));
    QLabel* ext = label(QString(), QString(), this);
    ControlBinder::bind(r.Label2, ext);
    ext->setToolTip(tr("Click to change the case"));
    m_label2 = ext;
    ext->installEventFilter(this);
    QLineEdit* suf = edit(r.txtSuf, tr("Ext"));
    m_snum = edit(r.txtSNum, tr("Start#"));
    m_enum = edit(r.txtENum, tr("End#"));
    QLineEdit* url = edit(r.txtUrl, tr("Base Url"));
    const QList<QPair<QString, QWidget*>> fields = {{tr("Prefix"), m_pref},
                                                    {QString(), suf},
                                                    {tr("Start#"), m_snum},
                                                    {tr("End#"), m_enum},
                                                    {tr("Base Url"), url}};
    for (int i = 0; i < fields.size(); ++i) {
        QLabel* l = fields[i].first.isEmpty() ? ext : label(QString(), fields[i].first, this);
        l->setBuddy(fields[i].second);
        grid->addWidget(l, 3 + i, 0);
        grid->addWidget(fields[i].second, 3 + i, 1, 1, 2);
    }
    for (QLineEdit* numbers : {m_snum, m_enum, m_pref})
        numbers->installEventFilter(this);

    auto* frame = new QGroupBox(r.Frame1.text(), this);
    frame->setObjectName(r.Frame1.name());
    auto* options = new QGridLayout(frame);
    options->addWidget(check(r.chkNumberOnLeft), 0, 0);
    options->addWidget(check(r.chkUniform), 0, 1);
    options->addWidget(check(r.chkNPAutoInFile), 1, 0);
    options->addWidget(check(r.chkNPLog), 1, 1);
    grid->addWidget(frame, 8, 0, 1, 4);

    grid->addWidget(button(r.cmdStart), 9, 1);
    grid->addWidget(button(r.cmdHelp), 9, 2);
    grid->addWidget(button(r.cmdQuit), 9, 3);
    connect(&r.cmdQuit, &Control::clicked, this, &QWidget::close);
}

void frmNetPics::place()
{
    const QRect area = AvailableScreen();
    const int left = (pixelsToTwips(area.width()) - Width) / 2;
    const int top = (pixelsToTwips(area.height()) - Height) / 2;
    const QString t = m_ctx.GetSetting(Sect::NetPic, Key::WBT_Net_PicT, QString::number(top));
    const QString l = m_ctx.GetSetting(Sect::NetPic, Key::WBT_Net_PicL, QString::number(left));
    // The window keeps the size its controls need; only its place is stored.
    PlaceWindow(this, m_ctx.state, l, t, QString::number(Height), QString::number(Width), true,
                m_treeWidth());
}

bool frmNetPics::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_label2 && event->type() == QEvent::MouseButtonRelease) {
        m_rules->Label2.click();
        return true;
    }
    if (event->type() == QEvent::KeyPress) {
        const int code = KeyAscii(static_cast<QKeyEvent*>(event));
        if (code >= 0 && (watched == m_snum || watched == m_enum))
            return !NetPic::numberKeyAccepted(code);
        if (code >= 0 && watched == m_pref)
            return !NetPic::prefixKeyAccepted(code);
    }
    return QWidget::eventFilter(watched, event);
}

void frmNetPics::CommunicatWithNetPic(const QStringList& pages)
{
    m_paging(pages);
}

void frmNetPics::unloadNetPics()
{
    close();
}

void frmNetPics::pumpEvents()
{
    QCoreApplication::processEvents();
}

void frmNetPics::closeEvent(QCloseEvent* event)
{
    if (!m_closed) {
        m_closed = true;
        m_ctx.SaveSetting(Sect::NetPic, Key::WBT_Net_PicT, QString::number(pixelsToTwips(y())));
        m_ctx.SaveSetting(Sect::NetPic, Key::WBT_Net_PicL, QString::number(pixelsToTwips(x())));
        m_rules->Unload();
    }
    event->accept();
}
