#include "frmGeoFtp.h"

#include "core/AppContext.h"
#include "core/ControlBinder.h"
#include "core/PlaceWindow.h"
#include "core/SettingsKeys.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QTimer>

namespace {

constexpr int TwipsPerPixel = 15;

QLineEdit* textBox(Control& model, QLabel* label, QWidget* parent)
{
    auto* edit = new QLineEdit(parent);
    ControlBinder::bind(model, edit);
    if (label)
        label->setBuddy(edit);
    edit->setAccessibleName(label ? label->text() : model.name());
    return edit;
}

QPushButton* button(Control& model, QWidget* parent)
{
    auto* b = new QPushButton(parent);
    b->setAutoDefault(false);
    ControlBinder::bind(model, b);
    return b;
}

QLabel* label(Control& model, QWidget* parent)
{
    auto* l = new QLabel(parent);
    ControlBinder::bind(model, l);
    return l;
}

} // namespace

frmGeoFtp::frmGeoFtp(AppContext& ctx, GeoFtp::Links links, QWidget* parent)
    : QDialog(parent), m_ctx(ctx)
{
    setAttribute(Qt::WA_DeleteOnClose);
    auto unload = [this] { QTimer::singleShot(0, this, &QWidget::close); };
    links.unload = unload;
    m_rules = std::make_unique<GeoFtp>(ctx, std::move(links));
    GeoFtp& r = *m_rules;
    ControlBinder::bindCaption(r.caption, this);

    auto* grid = new QGridLayout(this);
    auto* hostLabel = label(r.Label1, this);
    auto* host = new QComboBox(this);
    // The three hosts, or a typed host name.
    ControlBinder::bindEditable(r.cboFTPHost, host);
    hostLabel->setBuddy(host);
    host->setAccessibleName(r.Label1.text());
    grid->addWidget(hostLabel, 0, 0);
    grid->addWidget(host, 0, 1);
    auto* userLabel = label(r.Label3, this);
    QLineEdit* user = textBox(r.txtFTPUserID, userLabel, this);
    auto* passwordLabel = label(r.Label4, this);
    QLineEdit* password = textBox(r.txtFTPPassword, passwordLabel, this);
    password->setEchoMode(QLineEdit::Password);
    for (QLineEdit* edit : {user, password})
        connect(edit, &QLineEdit::editingFinished, this, [this] { m_rules->credentialsEdited(); });
    grid->addWidget(userLabel, 1, 0);
    grid->addWidget(user, 1, 1);
    grid->addWidget(passwordLabel, 2, 0);
    grid->addWidget(password, 2, 1);
    for (int slot = 1; slot <= GeoFtp::Slots; ++slot) {
        grid->addWidget(button(*r.cmdSelectFile[slot], this), 2 + slot, 0);
        QLineEdit* path = textBox(*r.txtFilesToSend[slot], nullptr, this);
        path->setAccessibleName(r.cmdSelectFile[slot]->text());
        grid->addWidget(path, 2 + slot, 1);
    }
    auto* buttons = new QHBoxLayout;
    for (Control* model : {r.cmdSendFiles[0], &r.cmdCreate, r.cmdSendFiles[1]})
        buttons->addWidget(button(*model, this));
    grid->addLayout(buttons, 8, 0, 1, 2);
    auto* status = new QStatusBar(this);
    status->setSizeGripEnabled(false);
    status->addWidget(label(r.StBarFTP, status), 1);
    grid->addWidget(status, 9, 0, 1, 2);
    grid->setColumnMinimumWidth(1, 360);

    r.Load();
    place();
}

frmGeoFtp::~frmGeoFtp() = default;

void frmGeoFtp::place()
{
    adjustSize();
    const QRect area = AvailableScreen();
    const int left = (area.width() - width()) / 2 * TwipsPerPixel;
    const int top = (area.height() - height()) / 2 * TwipsPerPixel;
    const QString t = m_ctx.GetSetting(Sect::Startup, Key::FTP_Top, QString::number(top));
    const QString l = m_ctx.GetSetting(Sect::Startup, Key::FTP_Left, QString::number(left));
    PlaceWindow(this, m_ctx.state, l, t, QString::number(height() * TwipsPerPixel),
                QString::number(width() * TwipsPerPixel), true, 0);
}

void frmGeoFtp::closeEvent(QCloseEvent* event)
{
    if (!m_rules->controlsEnabled()) {
        event->ignore(); // a transfer cannot be stopped: the window stays
        return;
    }
    m_ctx.SaveSetting(Sect::Startup, Key::FTP_Top, QString::number(y() * TwipsPerPixel));
    m_ctx.SaveSetting(Sect::Startup, Key::FTP_Left, QString::number(x() * TwipsPerPixel));
    m_rules->Unload();
    QDialog::closeEvent(event);
}
