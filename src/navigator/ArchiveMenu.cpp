#include "ArchiveMenu.h"

#include "core/AppContext.h"

#include <QFileInfo>
#include <exception>

ArchiveMenu::ArchiveMenu(AppContext& ctx, PageSources& sources) : m_ctx(ctx), m_sources(sources)
{
    mnuPagesOriginal.setText(QStringLiteral("Original addresses"));
    mnuPagesArchive.setText(QStringLiteral("Internet Archive"));
    mnuPagesGallery.setText(QStringLiteral("GeoCities gallery"));
    mnuPagesOoCities.setText(QStringLiteral("OoCities mirror"));
    mnuPagesMirror.setText(QStringLiteral("Local mirror"));
    mnuArchiveYear.setText(QStringLiteral("Archive year..."));
    connect(&mnuPagesOriginal, &Control::clicked, this, [this] { choose(PageSource::Original); });
    connect(&mnuPagesArchive, &Control::clicked, this,
            [this] { choose(PageSource::InternetArchive); });
    connect(&mnuPagesGallery, &Control::clicked, this, [this] { choose(PageSource::Gallery); });
    connect(&mnuPagesOoCities, &Control::clicked, this, [this] { choose(PageSource::OoCities); });
    connect(&mnuPagesMirror, &Control::clicked, this, &ArchiveMenu::MirrorClick);
    connect(&mnuArchiveYear, &Control::clicked, this, &ArchiveMenu::YearClick);
    showChoice();
}

void ArchiveMenu::load()
{
    m_sources.load(m_ctx);
    showChoice();
}

void ArchiveMenu::showChoice()
{
    const PageSource s = m_sources.source;
    mnuPagesOriginal.setChecked(s == PageSource::Original);
    mnuPagesArchive.setChecked(s == PageSource::InternetArchive);
    mnuPagesGallery.setChecked(s == PageSource::Gallery);
    mnuPagesOoCities.setChecked(s == PageSource::OoCities);
    mnuPagesMirror.setChecked(s == PageSource::LocalMirror);
    mnuArchiveYear.setChecked(false);
}

// A store that fails costs the choice at the next start, not this session.
void ArchiveMenu::store()
{
    try {
        m_sources.save(m_ctx);
    } catch (const std::exception&) {
    }
}

void ArchiveMenu::choose(PageSource source)
{
    m_sources.source = source;
    showChoice();
    store();
    emit sourceChanged();
}

void ArchiveMenu::YearClick()
{
    const bool japan = m_ctx.state.gblnJapan;
    const int last = PageSources::lastYear(japan);
    const QString prompt =
        QStringLiteral("Open the archive's pages of %1 as they stood in the year (%2 to %3):")
            .arg(japan ? QStringLiteral("GeoCities Japan") : QStringLiteral("GeoCities USA"))
            .arg(PageSources::FirstYear)
            .arg(last);
    const QString answer = m_ctx.prompts.inputBox(prompt, QStringLiteral("Internet Archive"),
                                                  QString::number(m_sources.year(japan)));
    if (answer.isNull())
        return;
    bool number = false;
    const int year = answer.trimmed().toInt(&number);
    if (!number || !m_sources.setYear(japan, year)) {
        m_ctx.MsgBox(QStringLiteral("Please enter a year from %1 to %2.")
                         .arg(PageSources::FirstYear)
                         .arg(last));
        showChoice();
        return;
    }
    choose(PageSource::InternetArchive);
}

void ArchiveMenu::MirrorClick()
{
    const QString answer = m_ctx.prompts.inputBox(
        QStringLiteral("The folder that holds www.geocities.com of the 2009 copy, or the "
                       "address of a local web server that serves it:"),
        QStringLiteral("Local mirror"), m_sources.localMirror);
    if (answer.isNull()) {
        showChoice();
        return;
    }
    const QString place = answer.trimmed();
    const bool web = PageSources::isWebAddress(place);
    if (!web && !QFileInfo(place).isDir()) {
        m_ctx.MsgBox(QStringLiteral("Neither a folder nor a web address: ") + place);
        showChoice();
        return;
    }
    m_sources.localMirror = web ? place : QFileInfo(place).absoluteFilePath();
    choose(PageSource::LocalMirror);
}
