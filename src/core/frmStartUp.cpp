#include "frmStartUp.h"

#include "SharedState.h"
#include "Version.h"

#include <QGuiApplication>
#include <QScreen>
#include <QVBoxLayout>

frmStartUp::frmStartUp(SharedState& state, const QPixmap& house)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint), m_state(state)
{
    setObjectName(QStringLiteral("frmStartUp"));
    // No frame shows it, but the task bar and screen readers do.
    setWindowTitle(QStringLiteral("Vorlan"));
    setAttribute(Qt::WA_QuitOnClose, false);
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QStringLiteral("frmStartUp { background: #000060; border: 2px solid #e8b530; }"
                                 "QLabel { color: #ffffe0; }"));

    QFont times(QStringLiteral("Times New Roman"));
    times.setPointSize(12);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 16, 24, 16);
    layout->setSpacing(4);
    auto make = [this, layout, &times](const char* name, const QString& text, int points) {
        auto* label = new QLabel(text, this);
        label->setObjectName(QLatin1String(name));
        QFont f = times;
        f.setPointSize(points);
        label->setFont(f);
        label->setAlignment(Qt::AlignHCenter);
        layout->addWidget(label);
        return label;
    };
    auto* picture = new QLabel(this);
    picture->setPixmap(house);
    picture->setAlignment(Qt::AlignHCenter);
    layout->addWidget(picture);
    Label2 = make("Label2", QStringLiteral("Vorlan"), 26);
    Label1 = make("Label1", QStringLiteral("A GeoCities navigator"), 11);
    // The texts end in carriage returns, as the program writes them.
    const QString version = QStringLiteral("   Vorlan Version %1.%2%3\r\r")
                                .arg(Version::Major)
                                .arg(Version::Minor)
                                .arg(QString::number(Version::Revision).left(1));
    const QStringList texts = {version, QStringLiteral("\rNeighborhoods and Suburbs of both sites"),
                               QStringLiteral("\rsaved links, AutoNav and RandNav"), QString()};
    for (int i = 0; i < 4; ++i) {
        lblStartUp[i] =
            make(qPrintable(QStringLiteral("lblStartUp[%1]").arg(i)), QString(), i == 3 ? 12 : 11);
        setLabel(i, texts[i]);
    }
    Label12 = make("Label12", QStringLiteral("One home page at a time"), 9);
    setFixedSize(sizeHint().expandedTo(QSize(380, 220)));

    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen) {
        const QRect area = screen->geometry();
        move(area.left() + (area.width() - width()) / 2,
             area.top() + (area.height() - height()) / 2);
    }
}

// The texts stand as the program writes them, leading blanks included; a
// carriage return is a line break.
void frmStartUp::setLabel(int index, const QString& text)
{
    QString shown = text;
    shown.replace(QLatin1String("\r\n"), QLatin1String("\n"))
        .replace(QLatin1Char('\r'), QLatin1Char('\n'));
    lblStartUp.at(index)->setText(shown);
}

frmStartUp::~frmStartUp()
{
    m_state.gblnStartUpShown = false;
}

void frmStartUp::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_state.gblnStartUpShown = true;
}
