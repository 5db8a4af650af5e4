#pragma once

#include <QString>

// What the word lists and word sources ask of Browser Two's window and of
// the main window.
class WordListHost
{
public:
    virtual ~WordListHost() = default;

    // frmWBTwo: a word list of count entries (the empty entry 0 included)
    // is in gstrSites; the walker takes its place and bounds from it.
    virtual void Pseudo(int count) = 0;
    // frmWBTwo: the source's name for the first status panel.
    virtual void WBTPassSometext(const QString& name) = 0;
    // The main window keeps the count read at the opening of Browser Two,
    // which hands it to Pseudo once the window is up.
    virtual void GPysuedo(int count) = 0;
    // The main window and Browser One leave always-on-top before a dialog.
    virtual void clearTopmost() = 0;
};
