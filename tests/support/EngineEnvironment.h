#pragma once

#include <QString>

// Sets up the browser engine of a test or benchmark process before its first
// page: every request through the given local proxy, no sandbox (tests run as
// root), and none of the engine's own background traffic.
namespace EngineEnvironment {
void prepare(const QString& proxyAddress);
} // namespace EngineEnvironment
