#include "ShellOptions.h"

#include "Version.h"

QString ShellOptions::answer(const QStringList& arguments)
{
    if (arguments == QStringList{QStringLiteral("--help")})
        return helpText();
    if (arguments == QStringList{QStringLiteral("--version")})
        return versionText();
    return QString();
}

QString ShellOptions::versionText()
{
    return Version::AppName() + QLatin1Char('\n');
}

QString ShellOptions::helpText()
{
    return QStringLiteral(
               "Usage: vorlan [ADDRESS | /? | --help | --version]\n"
               "\n"
               "A browsing tool for the GeoCities free home-page service.\n"
               "\n"
               "  ADDRESS    opened in Browser One when the command line begins with\n"
               "             http:// or mailto:, or ends in url (an internet shortcut),\n"
               "             whatever its capitals; any other argument is ignored\n"
               "  /?         shows the help in the desktop's web browser and quits\n"
               "  --help     prints this text and quits\n"
               "  --version  prints the version and quits\n"
               "\n"
               "Only one Vorlan runs at a time: started again with an address, it hands\n"
               "the address to the desktop's web browser; started again without one, it\n"
               "does nothing.\n"
               "\n"
               "Files:\n"
               "  ~/.config/Vorlan/Vorlan %1.%2.ini  the settings\n"
               "  ~/.local/share/Vorlan/           the data folder (GeoData.db, GeoBckUp.db)\n"
               "\n"
               "See vorlan(1) for more.\n")
        .arg(Version::Major)
        .arg(Version::Minor);
}
