#include "frmInetget.h"

#include "browserone/WebBrowserControl.h"
#include "core/AppContext.h"
#include "core/ControlBinder.h"
#include "core/PlaceWindow.h"
#include "core/SettingsKeys.h"
#include "core/WindowPlace.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QVBoxLayout>
#include <QWebEngineView>

frmInetget::frmInetget(AppContext& ctx, MainWindowCalls& main, QWebEngineProfile* profile,
                       std::function<int()> treeWidth)
    : m_ctx(ctx), m_treeWidth(std::move(treeWidth))
{
    setObjectName(QStringLiteral("frmInetget"));
    setAttribute(Qt::WA_QuitOnClose, false);
    setMinimumSize(twipsToPixels(WindowPlace::MinWidth), twipsToPixels(WindowPlace::MinHeight));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_label = new QLabel(this);
    m_label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(m_label);
    m_view = new QWebEngineView(this);
    m_view->setObjectName(QStringLiteral("InetWB"));
    layout->addWidget(m_view, 1);
    m_control = new WebBrowserControl(m_view, profile);
    m_rules = std::make_unique<FileGetter>(ctx, main, *this, *m_control);
    ControlBinder::bindCaption(m_rules->form, this);
    ControlBinder::bind(m_rules->lblInetFiles, m_label);
}

frmInetget::~frmInetget() = default;

void frmInetget::Load()
{
    if (m_loaded)
        return;
    m_loaded = true;
    m_rules->Load();
    const QRect area = AvailableScreen();
    auto get = [this](const char* key, int def) {
        return m_ctx.GetSetting(Sect::Startup, key, QString::number(def));
    };
    const QString w = get(Key::IGWE_W, WindowPlace::MinWidth);
    const QString h = get(Key::IGWE_H, WindowPlace::MinHeight);
    const QString l = get(Key::IGWE_L, (pixelsToTwips(area.width()) - w.toInt()) / 2);
    const QString t = get(Key::IGWE_T, (pixelsToTwips(area.height()) - h.toInt()) / 2);
    PlaceWindow(this, m_ctx.state, l, t, h, w, false, m_treeWidth());
}

void frmInetget::showGetter()
{
    Load();
    show();
    raise();
}

void frmInetget::unloadGetter()
{
    close();
}

void frmInetget::copyToClipboard(const QString& text)
{
    if (QClipboard* clipboard = QGuiApplication::clipboard())
        clipboard->setText(text);
}

void frmInetget::closeEvent(QCloseEvent* event)
{
    if (m_loaded) {
        m_loaded = false;
        auto save = [this](const char* key, int twips) {
            m_ctx.SaveSetting(Sect::Startup, key, QString::number(twips));
        };
        save(Key::IGWE_W, pixelsToTwips(width()));
        save(Key::IGWE_H, pixelsToTwips(height()));
        save(Key::IGWE_L, pixelsToTwips(x()));
        save(Key::IGWE_T, pixelsToTwips(y()));
    }
    m_rules->Unload();
    event->accept();
}
