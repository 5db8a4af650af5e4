#pragma once

#include <QString>
#include <QStringList>

// The pieces the page builder and its templates put together: lines with
// CR LF ends, the head every page starts with, the default body font, and
// the escapes that keep a typed text inside its attribute or string.
namespace PageMarkup {

// Each text followed by CR LF.
QString lines(const QStringList& texts);
// A "line break" line of the pages: a CR LF of its own, with its line end,
// so that two line ends follow one another.
QString lineBreak();
// The 17 lines of the head, without the closing head tag.
QString head();
// The FONT attributes a page has until a font is chosen.
QString defaultBodyFont();
// The FONT attributes for a chosen font; color as the classic 0x00BBGGRR.
QString bodyFont(const QString& name, double pointSize, int color);
// The text between double quotes.
QString quoted(const QString& text);
// The three lines that ask the user to edit the page.
QStringList editNote();
// The opening of the page's form, named name, sent by mail.
QStringList formStart(const QString& name);
// The form's submit button, its tag indented by indent, and the ends of the
// form, the body (bodyEnd) and the page.
QStringList formEnd(const QString& indent, const QString& bodyEnd);
// Appends the empty VBScript routine name to script, three lines.
void AddEmptySub(QString& script, const QString& name);

// A typed text as markup shows it: markup characters and quotes as
// entities, a line end as a blank, a character outside Windows-1252 as its
// numeric reference. Plain text passes unchanged.
QString html(const QString& text);
// A typed text inside a VBScript string: a quote doubled, a line end as a
// blank, a character outside Windows-1252 through ChrW.
QString vbString(const QString& text);

} // namespace PageMarkup
