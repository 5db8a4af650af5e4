#include "frmAbout.h"

#include "PromptService.h"
#include "Version.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSysInfo>

frmAbout::frmAbout(PromptService& prompts, const QPixmap& house, QWidget* parent)
    : QDialog(parent), m_prompts(prompts)
{
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(tr("About Vorlan"));
    auto* layout = new QGridLayout(this);
    auto* picture = new QLabel(this);
    picture->setPixmap(house);
    layout->addWidget(picture, 0, 0, 3, 1, Qt::AlignTop);

    auto* title = new QLabel(QStringLiteral("Vorlan"), this);
    title->setObjectName(QStringLiteral("lblTitle"));
    QFont big = title->font();
    big.setPointSize(big.pointSize() + 8);
    big.setBold(true);
    title->setFont(big);
    layout->addWidget(title, 0, 1);
    auto* version = new QLabel(QStringLiteral("Version %1.%2.%3")
                                   .arg(Version::Major)
                                   .arg(Version::Minor)
                                   .arg(Version::Revision),
                               this);
    version->setObjectName(QStringLiteral("lblVersion"));
    layout->addWidget(version, 1, 1);
    auto* description = new QLabel(
        tr("A browsing tool for the GeoCities free home-page service: step through the "
           "addresses of its Neighborhoods and Suburbs on the USA and Japan sites, keep the "
           "pages worth keeping, and let the program wander by itself."),
        this);
    description->setObjectName(QStringLiteral("lblDescription"));
    description->setWordWrap(true);
    description->setMinimumWidth(320);
    layout->addWidget(description, 2, 1);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    QPushButton* info = buttons->addButton(tr("&System Info..."), QDialogButtonBox::ActionRole);
    info->setObjectName(QStringLiteral("cmdSysInfo"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(info, &QPushButton::clicked, this, [this] {
        m_prompts.msgBox(SystemInfo(), PromptService::Information, tr("System Info"));
    });
    layout->addWidget(buttons, 3, 0, 1, 2);
}

QString frmAbout::SystemInfo()
{
    return QStringLiteral("%1\rKernel: %2 %3\rProcessor: %4\rHost: %5\rQt %6")
        .arg(QSysInfo::prettyProductName(), QSysInfo::kernelType(), QSysInfo::kernelVersion(),
             QSysInfo::currentCpuArchitecture(), QSysInfo::machineHostName(),
             QString::fromLatin1(qVersion()));
}
