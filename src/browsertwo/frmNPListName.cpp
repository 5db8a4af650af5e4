#include "frmNPListName.h"

#include "core/ControlBinder.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
// The longest name a list table had in the old database engine.
constexpr int MaxNameLength = 64;
} // namespace

frmNPListName::frmNPListName(SharedState& state, PromptService& prompts, QWidget* parent)
    : QDialog(parent), m_rules(state, prompts)
{
    setObjectName(m_rules.form.name());
    setModal(false);
    setAttribute(Qt::WA_DeleteOnClose);
    ControlBinder::bindCaption(m_rules.form, this);

    auto* label = new QLabel(this);
    ControlBinder::bind(m_rules.Label1, label);
    label->setWordWrap(true);
    m_name = new QLineEdit(this);
    m_name->setMaxLength(MaxNameLength);
    ControlBinder::bind(m_rules.txtNLName, m_name);
    label->setBuddy(m_name);
    m_name->installEventFilter(this);

    auto* ok = new QPushButton(this);
    ControlBinder::bind(m_rules.cmdOk, ok);
    ok->setDefault(true);
    auto* cancel = new QPushButton(this);
    ControlBinder::bind(m_rules.cmdCancel, cancel);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_name);
    layout->addLayout(buttons);

    connect(&m_rules, &ListNameRules::focusName, m_name, [this] { m_name->setFocus(); });
    connect(&m_rules, &ListNameRules::unloaded, this, [this] {
        m_answered = true;
        accept();
    });
}

bool frmNPListName::eventFilter(QObject* watched, QEvent* event)
{
    // Only keys that type a character are judged; arrows, Delete and Tab
    // edit and move about as usual.
    if (watched == m_name && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const QString text = key->text();
        const bool editing = key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab ||
                             key->key() == Qt::Key_Delete;
        if (!editing && !text.isEmpty() && !ListNameRules::keyPasses(text.at(0)))
            return true;
    }
    return QDialog::eventFilter(watched, event);
}

void frmNPListName::done(int result)
{
    // Closed from its frame or with Escape: the same as Cancel, so that the
    // wait for a name ends.
    if (!m_answered) {
        m_answered = true;
        m_rules.cmdCancel.click();
    }
    QDialog::done(result);
}
