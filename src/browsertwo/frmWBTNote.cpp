#include "frmWBTNote.h"

#include "WbtLinks.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

frmWBTNote::frmWBTNote(WbtLinks& links, QWidget* parent)
    : QWidget(parent, Qt::Dialog), m_links(links)
{
    setObjectName(QStringLiteral("frmWBTNote"));
    setWindowTitle(QStringLiteral("Enter a Note"));
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    m_note = new QPlainTextEdit(this);
    m_note->setObjectName(links.txtNote.name());
    m_note->setAccessibleName(tr("Note"));
    m_note->setPlainText(links.txtNote.text());
    m_note->installEventFilter(this);
    connect(m_note, &QPlainTextEdit::textChanged, this,
            [this] { m_links.txtNote.setText(m_note->toPlainText()); });
    auto* ok = new QPushButton(QStringLiteral("Ok"), this);
    ok->setObjectName(QStringLiteral("cmdOk"));
    auto* cancel = new QPushButton(QStringLiteral("Cancel"), this);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(ok, &QPushButton::clicked, this, [this] { m_links.NoteOkClick(); });
    connect(cancel, &QPushButton::clicked, this, &QWidget::close);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_note, 1);
    layout->addLayout(buttons);
    resize(360, 160);
}

// On focus the note is selected whole, ready to be typed over.
bool frmWBTNote::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_note && event->type() == QEvent::FocusIn)
        QTimer::singleShot(0, m_note, &QPlainTextEdit::selectAll);
    return QWidget::eventFilter(watched, event);
}

void frmWBTNote::closeEvent(QCloseEvent* event)
{
    m_links.NoteUnload();
    QWidget::closeEvent(event);
}
