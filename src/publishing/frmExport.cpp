#include "frmExport.h"

#include "core/ControlBinder.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QVBoxLayout>

namespace {

// An option button of a group: the model's check is the button's, and the
// rules, not Qt's exclusive group, clear the other options.
QRadioButton* optionButton(Control& model, QWidget* parent)
{
    auto* button = new QRadioButton(parent);
    button->setAutoExclusive(false);
    ControlBinder::bind(model, static_cast<QAbstractButton*>(button));
    auto show = [&model, button] { button->setChecked(model.isChecked()); };
    show();
    QObject::connect(&model, &Control::viewChanged, button, show);
    QObject::connect(button, &QAbstractButton::clicked, button, show);
    return button;
}

} // namespace

frmExport::frmExport(AppContext& ctx, std::function<void(const QString&)> openPage, QWidget* parent)
    : QDialog(parent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    // The unload comes from inside a click of the dialog's own button: the
    // dialog goes once that click has returned.
    LinkExport::Links links{std::move(openPage),
                            [this] { QTimer::singleShot(0, this, &QWidget::close); }};
    m_rules = std::make_unique<LinkExport>(ctx, std::move(links));
    LinkExport& r = *m_rules;
    ControlBinder::bindCaption(r.caption, this);

    auto* frame = new QGroupBox(this);
    frame->setObjectName(r.frExport.name());
    frame->setTitle(r.frExport.text());
    auto* options = new QVBoxLayout(frame);
    for (Control& option : r.optExport)
        options->addWidget(optionButton(option, frame));
    auto* load = new QCheckBox(frame);
    ControlBinder::bind(r.chkLoadInIE, load);
    options->addWidget(load);

    auto* buttons = new QHBoxLayout;
    for (Control* model : {&r.cmdExport, &r.cmdExportCancel}) {
        auto* button = new QPushButton(this);
        button->setAutoDefault(false);
        ControlBinder::bind(*model, button);
        buttons->addWidget(button);
    }
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(frame);
    layout->addLayout(buttons);
}

frmExport::~frmExport() = default;
