#pragma once

#include <QString>

// The program's version; the settings application is named after it, so a
// new minor version starts from empty settings.
namespace Version {
inline constexpr int Major = VORLAN_VERSION_MAJOR;
inline constexpr int Minor = VORLAN_VERSION_MINOR;
inline constexpr int Revision = VORLAN_VERSION_REVISION;

// gstrAppName: "Vorlan " + major + "." + minor.
inline QString AppName()
{
    return QStringLiteral("Vorlan %1.%2").arg(Major).arg(Minor);
}
} // namespace Version
