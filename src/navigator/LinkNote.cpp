#include "LinkNote.h"

#include "SavedLinks.h"
#include "core/AppContext.h"

#include <exception>

LinkNote::LinkNote(AppContext& ctx, SavedLinks& links) : m_ctx(ctx), m_links(links)
{
    form.setText(QStringLiteral("Enter a note!"));
}

QString LinkNote::InitialNote(const QString& title, bool useSiteTitles, const QString& defaultNote)
{
    if (title.isEmpty() || !useSiteTitles)
        return defaultNote;
    return title.left(TitleLength);
}

void LinkNote::Load(const std::function<QString()>& pageTitle)
{
    SharedState& st = m_ctx.state;
    QString title;
    try {
        if (st.gblnWBOneLoaded && m_ctx.ConnectionUp() && pageTitle)
            title = pageTitle();
    } catch (const std::exception&) {
    }
    txtComment.setText(InitialNote(title, st.gblnUseSiteTitles, st.gstrDefaultNote));
    st.gblnNoteOpen = true;
}

void LinkNote::Unload()
{
    m_ctx.state.gblnNoteOpen = false;
}

void LinkNote::OkClick()
{
    m_links.SaveNote(txtComment.text());
}
