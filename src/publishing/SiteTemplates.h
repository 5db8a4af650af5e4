#pragma once

#include "PageItems.h"
#include "PageText.h"

#include <QString>

// The ready-made pages of the page builder: the one-page skeleton, and the
// site of a frame set with its top, side and view frames. Each page is
// returned whole, to be written as it stands.
class SiteTemplates
{
public:
    // The names of one run, each made of an id of its own.
    struct Names
    {
        QString miscId;  // the link's routine
        QString frameId; // the frames (site only)
        QString formId;  // three digits of it name the form
        QString boxId;   // the form's text box
    };
    // The bare names of the site's files, and the view file's full path.
    struct Files
    {
        QString top;
        QString side;
        QString view;
        QString viewPath;
    };

    SiteTemplates(const PageText& page, const PageInputs& in, const Names& names);

    QString skeleton() const;
    // The frame set: what the page's body held, then the 26 lines.
    QString frameSet(const Files& files) const;
    QString side(const Files& files) const;
    QString top() const;
    QString view() const;

private:
    QString scriptBlock() const;
    // center: the centring tag, which differs between the skeleton and the
    // site.
    QString bodyOpening(const QString& center) const;
    // boxTag: the text box's opening, with one blank before LANGUAGE in the
    // skeleton and two in the site.
    QString form(const QString& boxTag) const;
    QString bodyLine() const;

    const PageText& m_page;
    const PageInputs& m_in;
    QString m_miscSub;
    QString m_frameName;
    QString m_formName;
    QString m_boxName;
};
