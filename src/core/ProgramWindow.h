#pragma once

// The windows of the program that one window opens or unloads through the
// program's registry of windows.
enum class ProgramWindow
{
    BrowserOne, // frmWBOne
    BrowserTwo, // frmWBTwo
    Cache,      // frmCache
    Export,     // frmExport
    GeoFtp,     // frmGeoFtp
    Options,    // frmOpt
    Script,     // frmVBScript
    NetPics,    // frmNetPics
    Inetget,    // frmInetget
    About,      // frmAbout
    GeoTree,    // frmTreeView
    LinkImport  // the import of old links: its file dialog and frmWait
};
