#include "DesktopIdentity.h"

#include "core/Version.h"

#include <QApplication>
#include <QDirIterator>

QString DesktopIdentity::appId()
{
    return QStringLiteral(VORLAN_APP_ID);
}

QIcon DesktopIdentity::icon()
{
    QIcon icon;
    QDirIterator sizes(QStringLiteral(":/icon"), QDir::Dirs | QDir::NoDotAndDotDot);
    while (sizes.hasNext())
        icon.addFile(sizes.next() + QLatin1Char('/') + appId() + QStringLiteral(".png"));
    return icon;
}

void DesktopIdentity::apply()
{
    QGuiApplication::setDesktopFileName(appId());
    QApplication::setApplicationVersion(
        QStringLiteral("%1.%2").arg(Version::Major).arg(Version::Minor));
    QApplication::setWindowIcon(icon());
}
