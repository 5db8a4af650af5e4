#include "frmOpt.h"

#include "core/ControlBinder.h"
#include "core/KeyAscii.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QTimer>

namespace {
QLabel* label(Control& model, QWidget* parent)
{
    auto* l = new QLabel(parent);
    ControlBinder::bind(model, l);
    return l;
}

QPushButton* button(Control& model, QWidget* parent)
{
    auto* b = new QPushButton(parent);
    b->setAutoDefault(false);
    ControlBinder::bind(model, b);
    return b;
}

QCheckBox* check(Control& model, QWidget* parent)
{
    auto* c = new QCheckBox(parent);
    ControlBinder::bind(model, c);
    return c;
}

QComboBox* combo(ListControl& model, QLabel* caption, QWidget* parent)
{
    auto* c = new QComboBox(parent);
    ControlBinder::bind(model, c);
    caption->setBuddy(c);
    c->setAccessibleName(caption->text().trimmed());
    return c;
}

QSlider* slider(SliderControl& model, const QString& name, QWidget* parent)
{
    auto* s = new QSlider(Qt::Horizontal, parent);
    s->setSingleStep(1);
    s->setPageStep(1);
    ControlBinder::bind(model, s);
    s->setAccessibleName(name);
    return s;
}
} // namespace

frmOpt::frmOpt(AppContext& ctx, MainWindowCalls& main, OptionsHost& host, QWidget* parent)
    : QDialog(parent), m_rules(ctx, main, host)
{
    setObjectName(m_rules.form.name());
    setModal(true);
    ControlBinder::bindCaption(m_rules.form, this);
    connect(&m_rules.form, &Control::viewChanged, this,
            [this] { setEnabled(m_rules.form.isEnabled()); });
    auto* layout = new QGridLayout(this);
    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName(m_rules.tbsOptions.name());
    m_tabs->installEventFilter(this);
    layout->addWidget(m_tabs, 0, 0, 1, 4);
    buildBasic();
    buildAdvanced();
    buildCatalogue();
    buildRandNav();
    buildWbt();
    buildSws();
    bindTabs();
    buildButtons();
    connect(&m_rules, &OptionsDialog::unloadWanted, this, [this] {
        m_unloaded = true;
        accept();
    });
    m_rules.Load();
}

frmOpt::~frmOpt() = default;

QGridLayout* frmOpt::page(int tab, Control& frame)
{
    auto* panel = new QWidget(m_tabs);
    panel->setObjectName(m_rules.picOptions[tab - 1].name());
    Control& model = m_rules.picOptions[tab - 1];
    connect(&model, &Control::viewChanged, panel,
            [panel, &model] { panel->setEnabled(model.isEnabled()); });
    auto* outer = new QGridLayout(panel);
    auto* box = new QGroupBox(frame.text(), panel);
    box->setObjectName(frame.name());
    outer->addWidget(box);
    m_tabs->addTab(panel, OptionsDialog::tabCaption(tab));
    m_tabs->setTabToolTip(tab - 1, OptionsDialog::tabToolTip(tab));
    return new QGridLayout(box);
}

QLineEdit* frmOpt::edit(Control& model, Control& caption, QGridLayout* grid, int row, int column,
                        int span)
{
    QWidget* parent = grid->parentWidget();
    QLabel* l = label(caption, parent);
    auto* e = new QLineEdit(parent);
    ControlBinder::bind(model, e);
    l->setBuddy(e);
    e->setAccessibleName(caption.text().trimmed());
    grid->addWidget(l, row, column);
    grid->addWidget(e, row, column + 1, 1, span);
    return e;
}

void frmOpt::buildBasic()
{
    OptionsDialog& r = m_rules;
    QGridLayout* g = page(OptionsDialog::BasicTab, r.fraBasic);
    QWidget* p = g->parentWidget();
    Control* checks[] = {&r.chkSynch,
                         &r.chkClosePopUps,
                         &r.chkEliminatePopUps,
                         &r.chkAssignRandomsToControls,
                         &r.chkSWebBrowserNextButton,
                         &r.chkBrowseOnSavedLinkClick};
    int row = 0;
    for (Control* c : checks)
        g->addWidget(check(*c, p), row++, 0, 1, 2);
    auto* time = new QGroupBox(r.frameTime.text(), p);
    time->setObjectName(r.frameTime.name());
    auto* tg = new QGridLayout(time);
    tg->addWidget(check(r.chkWaitForFullPage, time), 0, 0, 1, 2);
    m_waitTime = new QLineEdit(time);
    ControlBinder::bind(r.txtWaitTime, m_waitTime);
    m_waitTime->setAccessibleName(r.frameTime.text());
    m_waitTime->installEventFilter(this);
    tg->addWidget(m_waitTime, 1, 0);
    tg->addWidget(slider(r.sldrWaitTime, r.frameTime.text(), time), 1, 1);
    g->addWidget(time, row, 0, 1, 2);
}

void frmOpt::buildAdvanced()
{
    OptionsDialog& r = m_rules;
    QGridLayout* g = page(OptionsDialog::AdvancedTab, r.fraAdvanced);
    QWidget* p = g->parentWidget();
    for (int i = 0; i < 4; ++i)
        edit(r.txtAdvOpt[i], r.lblAdvOpt[i], g, i, 0, 2);
    edit(r.txtAdvOpt[4], r.Label8, g, 4, 0, 2);
    g->addWidget(check(r.chkWBTAdvUseTitles, p), 5, 0, 1, 3);
    QLabel* limitCaption = label(r.Label6, p);
    g->addWidget(limitCaption, 6, 0, 1, 3);
    QSlider* limit = slider(r.sldrLimit, r.Label6.text(), p);
    limitCaption->setBuddy(limit);
    g->addWidget(limit, 7, 0);
    m_limit = new QLineEdit(p);
    ControlBinder::bind(r.txtLimit, m_limit);
    m_limit->setAccessibleName(r.Label6.text());
    m_limit->setReadOnly(true); // the slider sets it; no key or paste does
    m_limit->installEventFilter(this);
    g->addWidget(m_limit, 7, 1);
    g->addWidget(label(r.Label7, p), 7, 2);
    QLabel* sources = label(r.lblPageSource, p);
    g->addWidget(sources, 8, 0);
    g->addWidget(combo(r.cboPageSource, sources, p), 8, 1, 1, 2);
}

void frmOpt::buildCatalogue()
{
    CatalogueEditor& r = m_rules.catalogue;
    QGridLayout* g = page(OptionsDialog::AddRemoveTab, r.fraOptions);
    QWidget* p = g->parentWidget();
    g->addWidget(label(r.Label2, p), 0, 0, 1, 4);
    QLabel* server = label(r.Label1, p);
    g->addWidget(server, 1, 0);
    g->addWidget(combo(r.cmbServer, server, p), 1, 1, 1, 3);
    g->addWidget(label(r.Label3, p), 2, 0, 1, 4);
    QLabel* hood = label(r.Label4, p);
    g->addWidget(hood, 3, 0);
    g->addWidget(combo(r.cmbN, hood, p), 3, 1);
    g->addWidget(button(r.cmdAdd[0], p), 3, 2);
    g->addWidget(button(r.cmdRemove[0], p), 3, 3);
    QLabel* suburb = label(r.Label5, p);
    g->addWidget(suburb, 4, 0);
    g->addWidget(combo(r.cmbS, suburb, p), 4, 1);
    g->addWidget(button(r.cmdAdd[1], p), 4, 2);
    g->addWidget(button(r.cmdRemove[1], p), 4, 3);
    g->addWidget(label(r.Label9, p), 5, 0, 1, 4);
}

void frmOpt::buildRandNav()
{
    RandNavEditor& r = m_rules.randNav;
    Control frame(QStringLiteral("fraOptions[4]"));
    frame.setText(OptionsDialog::tabTitle(OptionsDialog::RandNavTab));
    QGridLayout* g = page(OptionsDialog::RandNavTab, frame);
    QWidget* p = g->parentWidget();
    Control* captions[2] = {&r.Label1, &r.Label2};
    for (int i = 0; i < 2; ++i) {
        QLabel* l = label(*captions[i], p);
        auto* list = new QListWidget(p);
        ControlBinder::bind(r.lstRNS[i], list);
        l->setBuddy(list);
        list->setAccessibleName(captions[i]->text());
        g->addWidget(l, 0, i * 2);
        g->addWidget(list, 1, i * 2, 3, 1);
    }
    g->addWidget(button(r.cmdRandNavAdd[0], p), 1, 1);
    g->addWidget(button(r.cmdRandNavAdd[1], p), 2, 1);
    g->addWidget(check(r.chkUseSelected, p), 4, 0, 1, 3);
}

void frmOpt::buildWbt()
{
    WbtListsEditor& r = m_rules.wbt;
    QGridLayout* g = page(OptionsDialog::WbtTab, r.fraOptions);
    QWidget* p = g->parentWidget();
    g->addWidget(check(r.chkUsingWBTAuto, p), 0, 0, 1, 3);
    g->addWidget(check(r.chkWBTPromptForNew, p), 1, 0, 1, 3);
    ListControl* lists[2] = {&r.cmbWBTAddServer, &r.cmbWBTAddBadTitles};
    Control* captions[2] = {&r.Label10, &r.Label11};
    for (int i = 0; i < 2; ++i) {
        QLabel* l = label(*captions[i], p);
        g->addWidget(l, 2 + i * 2, 0, 1, 3);
        g->addWidget(combo(*lists[i], l, p), 3 + i * 2, 0);
        g->addWidget(button(r.cmdWBTAddServer[i], p), 3 + i * 2, 1);
        g->addWidget(button(r.cmdWBTDelServer[i], p), 3 + i * 2, 2);
    }
    QLabel* l = label(r.Label12, p);
    g->addWidget(l, 6, 0, 1, 3);
    m_wbtAdd = new QLineEdit(p);
    ControlBinder::bind(r.txtWBTAdd, m_wbtAdd);
    l->setBuddy(m_wbtAdd);
    m_wbtAdd->setAccessibleName(r.Label12.text());
    m_wbtAdd->installEventFilter(this);
    g->addWidget(m_wbtAdd, 7, 0, 1, 3);
}

void frmOpt::buildSws()
{
    SwsEditor& r = m_rules.sws;
    QGridLayout* g = page(OptionsDialog::SwsTab, r.fraOptions);
    QWidget* p = g->parentWidget();
    ListControl* lists[2] = {&r.cboWBTSWS, &r.cboWBTSWSSubs};
    for (int i = 0; i < 2; ++i) {
        QLabel* l = label(r.lblWBTSWS[i], p);
        g->addWidget(l, i, 0);
        g->addWidget(combo(*lists[i], l, p), i, 1);
        g->addWidget(button(r.cmdWBTSWSAdd[i], p), i, 2);
        g->addWidget(button(r.cmdWBTSWSRemove[i], p), i, 3);
    }
    QLabel* serverCaption = label(r.Label13, p);
    g->addWidget(serverCaption, 2, 0, 1, 4);
    m_swsServer = new QLineEdit(p);
    QLabel* subCaption = label(r.Label14, p);
    m_swsSub = new QLineEdit(p);
    ControlBinder::bind(r.txtSWSServer, m_swsServer);
    ControlBinder::bind(r.txtSWSSub, m_swsSub);
    serverCaption->setBuddy(m_swsServer);
    subCaption->setBuddy(m_swsSub);
    m_swsServer->setAccessibleName(r.Label13.text());
    m_swsSub->setAccessibleName(r.Label14.text());
    m_swsServer->installEventFilter(this);
    m_swsSub->installEventFilter(this);
    g->addWidget(m_swsServer, 3, 0, 1, 4);
    g->addWidget(subCaption, 4, 0, 1, 4);
    g->addWidget(m_swsSub, 5, 0, 1, 4);
    g->addWidget(label(r.lblUrl, p), 6, 0, 1, 4);
}

void frmOpt::buildButtons()
{
    auto* grid = static_cast<QGridLayout*>(layout());
    Control* buttons[] = {&m_rules.cmdOk, &m_rules.cmdCancel, &m_rules.cmdApply, &m_rules.cmdReSet};
    int column = 0;
    for (Control* c : buttons)
        grid->addWidget(button(*c, this), 1, column++);
}

void frmOpt::bindTabs()
{
    ListControl& model = m_rules.tbsOptions;
    auto show = [this, &model] {
        const QSignalBlocker block(m_tabs);
        m_tabs->setCurrentIndex(model.listIndex());
    };
    connect(&model, &Control::viewChanged, m_tabs, show);
    connect(m_tabs, &QTabWidget::currentChanged, &model,
            [&model](int index) { model.userSelect(index); });
}

bool frmOpt::ctrlTab(QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool tab = key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab;
    if (!tab || !(key->modifiers() & Qt::ControlModifier))
        return false;
    const int shift = (key->modifiers() & Qt::ShiftModifier ? 1 : 0) | 2;
    m_rules.KeyDown(9, shift);
    return true;
}

bool frmOpt::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_tabs)
        return ctrlTab(event) || QDialog::eventFilter(watched, event);
    if (watched == m_wbtAdd && event->type() == QEvent::FocusIn)
        QTimer::singleShot(0, m_wbtAdd, &QLineEdit::selectAll);
    if (watched == m_swsServer && event->type() == QEvent::FocusOut)
        m_rules.sws.ServerLostFocus();
    if (event->type() != QEvent::KeyPress || ctrlTab(event))
        return event->type() == QEvent::KeyPress || QDialog::eventFilter(watched, event);
    const int code = TypedCode(static_cast<QKeyEvent*>(event));
    if (code < 0)
        return false;
    if (watched == m_waitTime)
        return !OptionsDialog::waitTimeKeyAccepted(code);
    if (watched == m_limit)
        return true;
    if (watched == m_swsServer || watched == m_swsSub)
        return !SwsEditor::keyAccepted(watched == m_swsServer, code);
    return false;
}

void frmOpt::keyPressEvent(QKeyEvent* event)
{
    if (!ctrlTab(event))
        QDialog::keyPressEvent(event);
}

// Escape and the window's close box are the Cancel button.
void frmOpt::reject()
{
    if (m_unloaded)
        QDialog::reject();
    else
        m_rules.CancelClick();
}
