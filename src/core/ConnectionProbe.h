#pragma once

#include <QString>

// The program's one test for a working internet connection.
class ConnectionProbe
{
public:
    virtual ~ConnectionProbe() = default;
    virtual bool isUp() const = 0;
};

// Looks for a network interface, other than loopback, that is up, running
// and carries a route.
class SystemConnectionProbe : public ConnectionProbe
{
public:
    bool isUp() const override;

    // The interfaces that /proc/net/route and /proc/net/ipv6_route name,
    // loopback excluded; the texts are those files' contents.
    static QStringList routedInterfaces(const QString& ipv4Routes, const QString& ipv6Routes);
};
