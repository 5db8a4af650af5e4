#include "frmVBScript.h"

#include "core/AppContext.h"
#include "core/ControlBinder.h"
#include "core/PlaceWindow.h"
#include "core/SettingsKeys.h"
#include "core/WindowPlace.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

namespace {

QPushButton* button(Control& model, QWidget* parent)
{
    auto* b = new QPushButton(parent);
    b->setAutoDefault(false);
    ControlBinder::bind(model, b);
    return b;
}

// The number lists take digits only: every other key that types something
// is dropped, Backspace among them, as the program always had it.
class DigitsOnly : public QObject
{
public:
    using QObject::QObject;
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const QString typed = static_cast<QKeyEvent*>(event)->text();
        if (typed.isEmpty())
            return false;
        for (QChar c : typed)
            if (!c.isDigit())
                return true;
        return false;
    }
};

} // namespace

frmVBScript::frmVBScript(AppContext& ctx, std::function<void(const QString&)> openPage,
                         QWidget* parent)
    : QDialog(parent), m_ctx(ctx)
{
    setObjectName(QStringLiteral("frmVBScript"));
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    PageBuilder::Links links{
        std::move(openPage), [this] { QTimer::singleShot(0, this, &QWidget::close); }, {}};
    m_rules = std::make_unique<PageBuilder>(ctx, std::move(links));
    m_rules->Load();
    ControlBinder::bindCaption(m_rules->caption, this);
    m_grid = new QGridLayout(this);
    buildItems();
    buildPageRow();
    place();
}

frmVBScript::~frmVBScript() = default;

QLineEdit* frmVBScript::textBox(int index)
{
    Control& model = *m_rules->txtVBSText[index];
    auto* edit = new QLineEdit(this);
    ControlBinder::bind(model, edit);
    edit->setAccessibleName(model.toolTip());
    edit->installEventFilter(this);
    return edit;
}

QComboBox* frmVBScript::list(int index)
{
    ListControl& model = *m_rules->cboVBSSelect[index];
    auto* combo = new QComboBox(this);
    if (index <= 5) {
        ControlBinder::bindEditable(model, combo);
        combo->lineEdit()->installEventFilter(new DigitsOnly(combo));
    } else {
        ControlBinder::bind(model, combo);
    }
    combo->installEventFilter(this); // the box passes its focus on to its text
    combo->setAccessibleName(model.toolTip());
    return combo;
}

// One row for each item: its button, then what shapes it.
void frmVBScript::buildItems()
{
    PageBuilder& r = *m_rules;
    auto row = [this, &r](int line, int item, const QList<QWidget*>& widgets) {
        m_grid->addWidget(button(*r.cmdVBSButtons[item], this), line, 0);
        for (int i = 0; i < widgets.size(); ++i)
            m_grid->addWidget(widgets[i], line, i + 1);
    };
    row(0, 0, {textBox(0)});
    row(1, 1, {textBox(1), list(8), list(0), list(1)});
    row(2, 2, {textBox(2), list(2), list(3)});
    row(3, 3, {textBox(6)});
    row(4, 5, {});
    row(5, 7, {textBox(3), button(*r.cmdVBSButtons[8], this), list(6), list(5)});
    row(6, 10, {textBox(4), list(7)});
    row(7, 11, {textBox(5), button(*r.cmdVBSButtons[12], this)});
}

void frmVBScript::buildPageRow()
{
    PageBuilder& r = *m_rules;
    auto* colour = new QComboBox(this);
    ControlBinder::bind(r.cboBGColor, colour);
    colour->setAccessibleName(r.cboBGColor.toolTip());
    m_grid->addWidget(colour, 8, 0);
    m_grid->addWidget(button(r.cmdBodyFont, this), 8, 1);
    m_center = button(r.cmdCenter, this);
    connect(&r.cmdCenter, &Control::viewChanged, this, &frmVBScript::showCenter);
    m_grid->addWidget(m_center, 8, 2);
    auto* open = new QCheckBox(this);
    ControlBinder::bind(r.chkOpenFile, open);
    m_grid->addWidget(open, 8, 3);
    auto* label = new QLabel(this);
    ControlBinder::bind(r.Label1, label);
    auto* path = new QLabel(this);
    ControlBinder::bind(r.lblOutPutFile, path);
    m_grid->addWidget(label, 9, 0);
    m_grid->addWidget(path, 9, 1, 1, 4);
    auto* buttons = new QHBoxLayout;
    for (Control* model : {&r.cmdWriteToFile, &r.cmdSkeleton, &r.cmdThreeFrameSite, &r.cmdClose})
        buttons->addWidget(button(*model, this));
    m_grid->addLayout(buttons, 10, 0, 1, 5);
}

// Red while the page is centred, the button's own colour otherwise.
void frmVBScript::showCenter()
{
    m_center->setStyleSheet(m_rules->page().blnCenter
                                ? QStringLiteral("background-color: rgb(255, 0, 0);")
                                : QString());
}

// A box or list that takes the focus has its whole text selected, also
// when the focus comes by a click.
bool frmVBScript::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn) {
        auto* edit = qobject_cast<QLineEdit*>(watched);
        if (!edit)
            if (auto* combo = qobject_cast<QComboBox*>(watched))
                edit = combo->lineEdit();
        if (edit)
            QTimer::singleShot(0, edit, &QLineEdit::selectAll);
    }
    return QDialog::eventFilter(watched, event);
}

void frmVBScript::place()
{
    adjustSize();
    const QRect area = AvailableScreen();
    const int left = (area.width() - width()) / 2 * WindowPlace::TwipsPerPixel;
    const int top = (area.height() - height()) / 2 * WindowPlace::TwipsPerPixel;
    const QString t = m_ctx.GetSetting(Sect::Startup, Key::VBS_Top, QString::number(top));
    const QString l = m_ctx.GetSetting(Sect::Startup, Key::VBS_Left, QString::number(left));
    PlaceWindow(this, m_ctx.state, l, t, QString::number(height() * WindowPlace::TwipsPerPixel),
                QString::number(width() * WindowPlace::TwipsPerPixel), true, 0);
}

void frmVBScript::closeEvent(QCloseEvent* event)
{
    m_ctx.SaveSetting(Sect::Startup, Key::VBS_Top,
                      QString::number(y() * WindowPlace::TwipsPerPixel));
    m_ctx.SaveSetting(Sect::Startup, Key::VBS_Left,
                      QString::number(x() * WindowPlace::TwipsPerPixel));
    m_rules->Unload();
    QDialog::closeEvent(event);
}
