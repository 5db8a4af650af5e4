#pragma once

// The page builder's rules on private folders, with ids drawn in a known
// order and the pages it asked to open.

#include "TestContext.h"
#include "core/SettingsKeys.h"
#include "publishing/PageBuilder.h"

#include <QDir>
#include <memory>

struct PageRig
{
    TestContext t;
    QString out; // the output folder
    QStringList opened;
    int unloads = 0;
    int ids = 100000;
    std::unique_ptr<PageBuilder> rules;

    PageRig()
    {
        out = t.folders.root() + "/out/";
        QDir().mkpath(out);
        t.ctx.SaveSetting(Sect::CacheManager, Key::DefaultOutPutDir, out);
        PageBuilder::Links links{[this](const QString& path) { opened << path; },
                                 [this] { ++unloads; }, [this] { return QString::number(++ids); }};
        rules = std::make_unique<PageBuilder>(t.ctx, links);
        rules->Load();
    }

    void press(int button) { rules->cmdVBSButtons[button]->click(); }
};

// Lines as the pages hold them: each ended by CR LF.
inline QByteArray crlf(const QStringList& lines)
{
    QByteArray bytes;
    for (const QString& line : lines)
        bytes += line.toLatin1() + "\r\n";
    return bytes;
}

inline QString crlfText(const QStringList& lines)
{
    return QString::fromLatin1(crlf(lines));
}

// The head every page begins with.
inline const QStringList HeadLines{
    "<HTML>",
    "  <HEAD>",
    "    <TITLE></TITLE>",
    "    <META ",
    "         NAME = \"DESCRIPTION\"",
    "         CONTENT = \"\">",
    "    <META ",
    "         NAME = \"KEYWORDS\"",
    "         CONTENT = \"\">",
    "    <META ",
    "         NAME = \"RATING\"",
    "         CONTENT = \"\">",
    "    <STYLE TYPE=\"TEXT/CSS\">",
    "      <!--",
    "      A{TEXT-DECORATION: NONE;} A:LINK{COLOR: #5900DF;} A:VISITED{COLOR: #FFA000;} "
    "A:HOVER{ COLOR:#FF0000; TEXT-DECORATION: UNDERLINE }",
    "      -->",
    "    </STYLE>"};

inline const QString DefaultFont = "FACE = \"MS SERIF\" SIZE = \"4\" COLOR =\"0\" ";

// The lines that ask the user to edit the page.
inline const QStringList EditNote{"<BR>You will need to edit this file deleting",
                                  "<BR>what you don't need and adding what you do.",
                                  "<BR>Script is prewritten for your convenience!</CENTER><P>"};
