#include "ConnectionProbe.h"

#include <QFile>
#include <QNetworkInterface>
#include <QRegularExpression>
#include <QStringList>

namespace {

QString readProcFile(const QString& path)
{
    // Files under /proc report a size of 0, so read until the end.
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return QString();
    return QString::fromLatin1(file.readAll());
}

QStringList fieldsOf(const QString& line)
{
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    return line.split(blanks, Qt::SkipEmptyParts);
}

void addInterface(QStringList& names, const QString& name)
{
    if (!name.isEmpty() && name != QLatin1String("lo") && !names.contains(name))
        names.append(name);
}

} // namespace

QStringList SystemConnectionProbe::routedInterfaces(const QString& ipv4Routes,
                                                    const QString& ipv6Routes)
{
    QStringList names;
    // The IPv4 table starts with a header line; its first column names the interface.
    const QStringList v4Lines = ipv4Routes.split(QLatin1Char('\n'));
    for (int i = 1; i < v4Lines.size(); ++i) {
        const QStringList fields = fieldsOf(v4Lines.at(i));
        if (!fields.isEmpty())
            addInterface(names, fields.first());
    }
    // The IPv6 table has no header; the interface is its last column. Every
    // interface has link-local and multicast routes: they carry no traffic out.
    for (const QString& line : ipv6Routes.split(QLatin1Char('\n'))) {
        const QStringList fields = fieldsOf(line);
        if (fields.size() < 2)
            continue;
        const QString destination = fields.first().toLower();
        if (destination.startsWith(QLatin1String("fe80")) ||
            destination.startsWith(QLatin1String("ff")))
            continue;
        addInterface(names, fields.last());
    }
    return names;
}

bool SystemConnectionProbe::isUp() const
{
    const QStringList routed =
        routedInterfaces(readProcFile(QStringLiteral("/proc/net/route")),
                         readProcFile(QStringLiteral("/proc/net/ipv6_route")));
    const auto wanted = QNetworkInterface::IsUp | QNetworkInterface::IsRunning;
    for (const QNetworkInterface& iface : QNetworkInterface::allInterfaces()) {
        if (iface.flags().testFlag(QNetworkInterface::IsLoopBack))
            continue;
        if ((iface.flags() & wanted) == wanted && routed.contains(iface.name()))
            return true;
    }
    return false;
}
