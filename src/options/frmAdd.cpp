#include "frmAdd.h"

#include "core/ControlBinder.h"
#include "core/KeyAscii.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

frmAdd::frmAdd(AppContext& ctx, QWidget* parent) : QDialog(parent), m_rules(ctx)
{
    setObjectName(m_rules.form.name());
    ControlBinder::bindCaption(m_rules.form, this);
    auto* grid = new QGridLayout(this);
    Control* labels[3] = {&m_rules.Label1, &m_rules.Label2, &m_rules.Label3};
    const int lengths[3] = {AreaAdder::DescriptionLength, AreaAdder::NameLength,
                            AreaAdder::NameLength};
    for (int i = 0; i < 3; ++i) {
        auto* label = new QLabel(this);
        ControlBinder::bind(*labels[i], label);
        m_boxes[i] = new QLineEdit(this);
        m_boxes[i]->setMaxLength(lengths[i]);
        ControlBinder::bind(m_rules.txtAdd[i], m_boxes[i]);
        label->setBuddy(m_boxes[i]);
        m_boxes[i]->setAccessibleName(labels[i]->text());
        m_boxes[i]->installEventFilter(this);
        grid->addWidget(label, i * 2, 0, 1, 3);
        grid->addWidget(m_boxes[i], i * 2 + 1, 0, 1, 3);
    }
    for (int i = 0; i < 3; ++i) {
        auto* button = new QPushButton(this);
        button->setAutoDefault(false);
        ControlBinder::bind(m_rules.cmd[i], button);
        grid->addWidget(button, 6, i);
    }
    connect(&m_rules.cmd[1], &Control::clicked, this, [this] { m_quit = true; });
    connect(&m_rules, &AreaAdder::unloadWanted, this, &QDialog::accept);
}

bool frmAdd::AddAreas(int neighborhoodTable, int suburbTable, int addMode, int neighborhood)
{
    m_rules.AddAreas(neighborhoodTable, suburbTable, addMode, neighborhood);
    m_quit = false;
    exec();
    return m_quit && m_rules.changed();
}

bool frmAdd::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const int code = TypedCode(static_cast<QKeyEvent*>(event));
        for (int i = 0; i < 3; ++i)
            if (watched == m_boxes[i] && code >= 0)
                return !AreaAdder::keyAccepted(i, code);
    }
    return QDialog::eventFilter(watched, event);
}
