#pragma once

#include <QString>

// The page being built in the page builder, as plain texts. Every line in
// them already ends with CR LF.
struct PageText
{
    QString strOutputFile;  // where the next Write file goes
    QString strHead;        // built once at Load, the closing head tag left out
    QString strScript;      // the VBScript routines of the items so far
    QString strBody;        // the markup of the items so far
    QString strListOptions; // the options of the list box under way
    QString strBodyFont;    // the attributes of the page's FONT tag
    QString strRadioGroup;  // the name of the radio group under way
    bool blnCenter = false;
    int intListItems = 0;
    int intRadioItems = 0;
};
