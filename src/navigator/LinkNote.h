#pragma once

#include "core/Controls.h"

#include <functional>

class SavedLinks;
struct AppContext;

// The rules of frmWBONote, the note asked for when a link is saved. The
// note starts as the page's title or the default note; Ok stores the link
// with the note.
class LinkNote
{
public:
    // The part of a page's title that a note starts with.
    static constexpr int TitleLength = 100;

    LinkNote(AppContext& ctx, SavedLinks& links);

    Control form{QStringLiteral("frmWBONote")}; // its text is the caption
    Control txtComment{QStringLiteral("txtComment")};

    // pageTitle reads the title of Browser One's page; it is asked only
    // while that window is open and the connection is up.
    void Load(const std::function<QString()>& pageTitle);
    void Unload();
    void OkClick();

    // The note a dialog starts with for a page of that title.
    static QString InitialNote(const QString& title, bool useSiteTitles,
                               const QString& defaultNote);

private:
    AppContext& m_ctx;
    SavedLinks& m_links;
};
