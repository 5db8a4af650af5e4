#pragma once

#include "PageText.h"

#include <QString>
#include <array>

// What the page builder's boxes and lists hold when an item is added: the
// texts as typed, the lists' texts as shown.
struct PageInputs
{
    std::array<QString, 7> txtVBSText;
    std::array<QString, 9> cboVBSSelect;
    QString colour; // the name shown in the colour list
};

// The items of the page builder, each appended to the page text with its
// script routines. Each returns the item's name. Typed texts go in through
// PageMarkup's escapes: a text of plain characters stands as typed, one
// with markup, quotes, line ends or characters beyond Windows-1252 is
// escaped so that it stays inside its attribute or string.
namespace PageItems {

QString inputBox(PageText& page, const QString& id, const PageInputs& in);
QString textBox(PageText& page, const QString& id, const PageInputs& in);
QString textArea(PageText& page, const QString& id, const PageInputs& in);
QString commandButton(PageText& page, const QString& id, const PageInputs& in);
// The frame's tag, showing viewName (a bare file name).
void floatingFrame(PageText& page, const QString& viewName);
// The example page the floating frame shows.
QString frameView(const PageText& page);
QString listItem(PageText& page, const QString& id, const PageInputs& in);
QString listBox(PageText& page, const QString& id, const PageInputs& in);
QString checkBox(PageText& page, const QString& id, const PageInputs& in);
// secondId names the button's own routine.
QString radioButton(PageText& page, const QString& id, const QString& secondId,
                    const PageInputs& in);
// The whole page of Write file; formId is a new id, of which three digits
// name the form.
QString page(const PageText& page, const QString& formId, const QString& colour);

} // namespace PageItems
