#pragma once

#include "PageSources.h"
#include "core/Controls.h"

#include <QObject>

struct AppContext;

// The "Open pages from" entries of the Tools menu: one checked source, the
// archive's year and the local mirror's place, kept in the settings.
class ArchiveMenu : public QObject
{
    Q_OBJECT
public:
    ArchiveMenu(AppContext& ctx, PageSources& sources);

    Control mnuPagesOriginal{QStringLiteral("mnuPagesOriginal")};
    Control mnuPagesArchive{QStringLiteral("mnuPagesArchive")};
    Control mnuPagesGallery{QStringLiteral("mnuPagesGallery")};
    Control mnuPagesOoCities{QStringLiteral("mnuPagesOoCities")};
    Control mnuPagesMirror{QStringLiteral("mnuPagesMirror")};
    Control mnuArchiveYear{QStringLiteral("mnuArchiveYear")};

    // Reads the choice from the settings and shows it.
    void load();
    // Shows the sources' state in the check marks.
    void showChoice();

    void choose(PageSource source);
    // Asks for the year of the site on show.
    void YearClick();
    // Asks for the folder or address of the local mirror, then uses it.
    void MirrorClick();

signals:
    void sourceChanged();

private:
    void store();

    AppContext& m_ctx;
    PageSources& m_sources;
};
