#include "frmWBONote.h"

#include "addressdata/TextDatabase.h"
#include "core/ControlBinder.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

frmWBONote::frmWBONote(AppContext& ctx, SavedLinks& links,
                       const std::function<QString()>& pageTitle, QWidget* parent)
    : QDialog(parent), m_rules(ctx, links)
{
    setObjectName(m_rules.form.name());
    setModal(true);
    ControlBinder::bindCaption(m_rules.form, this);

    m_comment = new QLineEdit(this);
    m_comment->setMinimumWidth(320);
    // A field holds no more; a longer title or paste is cut as it comes in.
    m_comment->setMaxLength(TextDatabase::MaxFieldLength);
    ControlBinder::bind(m_rules.txtComment, m_comment);
    // No label stands beside the box: a screen reader names it by this.
    m_comment->setAccessibleName(tr("Note"));
    m_comment->installEventFilter(this);

    m_ok = new QPushButton(tr("&Ok"), this);
    m_ok->setObjectName(QStringLiteral("Command1"));
    m_ok->setDefault(true);
    m_cancel = new QPushButton(tr("Cancel"), this);
    m_cancel->setObjectName(QStringLiteral("Command2"));
    connect(m_ok, &QPushButton::clicked, this, [this] {
        m_rules.OkClick();
        accept();
    });
    connect(m_cancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_ok);
    buttons->addWidget(m_cancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_comment);
    layout->addLayout(buttons);
    setFixedSize(sizeHint());

    m_rules.Load(pageTitle);
}

frmWBONote::~frmWBONote()
{
    if (!m_unloaded)
        m_rules.Unload();
}

void frmWBONote::done(int result)
{
    m_rules.Unload();
    m_unloaded = true;
    QDialog::done(result);
}

bool frmWBONote::eventFilter(QObject* watched, QEvent* event)
{
    // Select the whole note when the box gets the focus, after the click
    // that gave it has placed the cursor.
    if (watched == m_comment && event->type() == QEvent::FocusIn)
        QTimer::singleShot(0, m_comment, &QLineEdit::selectAll);
    return QDialog::eventFilter(watched, event);
}
