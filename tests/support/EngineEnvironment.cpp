#include "EngineEnvironment.h"

#include <QByteArray>

namespace EngineEnvironment {

void prepare(const QString& proxyAddress)
{
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    const QByteArray flags =
        "--proxy-server=" + proxyAddress.toLatin1() +
        " --proxy-bypass-list=<-loopback>"
        // No name is looked up: a request that does not go
        // through the proxy fails at once.
        " --host-resolver-rules=\"MAP * ~NOTFOUND, EXCLUDE 127.0.0.1\""
        " --disable-background-networking --disable-component-update"
        " --no-first-run --disable-gpu --disable-quic"
        " --disable-renderer-backgrounding --disable-background-timer-throttling"
        " --disable-backgrounding-occluded-windows";
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", flags);
}

} // namespace EngineEnvironment
