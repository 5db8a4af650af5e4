#pragma once

// Every section and key of the settings store, named once. Defaults stay at
// the reading sites, since the program reads some keys with different ones.
namespace Sect {
inline constexpr const char* Startup = "Startup";
inline constexpr const char* VorlanMain = "VorlanMain";
inline constexpr const char* AdvOpt = "AdvOpt";
inline constexpr const char* WebBrowser = "WebBrowser";
inline constexpr const char* WebBrwsrTwo = "WebBrwsrTwo";
inline constexpr const char* CacheManager = "CacheManager";
inline constexpr const char* NetPic = "NetPic";
inline constexpr const char* FTP = "FTP";
} // namespace Sect

namespace Key {
// Startup
inline constexpr const char* AdvOptInit = "AdvOptInit";
inline constexpr const char* Path = "Path";
inline constexpr const char* Neigh = "Neigh";
inline constexpr const char* Subrb = "Subrb";
inline constexpr const char* HouseNumber = "House Number";
inline constexpr const char* JapanNeighborhood = "JapanNeighborhood";
inline constexpr const char* JapanSuburb = "JapanSuburb";
inline constexpr const char* JapanHouseNumber = "Japan House Number";
inline constexpr const char* HNPS = "HNPS";
inline constexpr const char* FullPages = "FullPages";
inline constexpr const char* GlobalTimer = "GlobalTimer";
inline constexpr const char* AutoLimit = "gblnAutoLimit";
inline constexpr const char* OSLOC = "OSLOC";
inline constexpr const char* SNBOWB = "SNBOWB";
inline constexpr const char* AssignRTC = "AssignRTC";
inline constexpr const char* PopUps = "PopUps";
inline constexpr const char* EliminatePopUps = "Elimate_PopUps";
inline constexpr const char* LinksT = "LinksT";
inline constexpr const char* LinksL = "LinksL";
inline constexpr const char* LinksH = "LinksH";
inline constexpr const char* LinksW = "LinksW";
inline constexpr const char* WBT_LinksT = "WBT_LinksT";
inline constexpr const char* WBT_LinksL = "WBT_LinksL";
inline constexpr const char* WBT_LinksH = "WBT_LinksH";
inline constexpr const char* WBT_LinksW = "WBT_LinksW";
inline constexpr const char* IGWE_W = "IGWE_W";
inline constexpr const char* IGWE_H = "IGWE_H";
inline constexpr const char* IGWE_L = "IGWE_L";
inline constexpr const char* IGWE_T = "IGWE_T";
// The file getter's limits: a fetch's stall and size, fetches at once, and
// the wait for pages, shared by all pages of one list.
inline constexpr const char* GetterStallMs = "GetterStallMs";
inline constexpr const char* GetterMaxBytes = "GetterMaxBytes";
inline constexpr const char* GetterParallel = "GetterParallel";
inline constexpr const char* GetterPageWaitMs = "GetterPageWaitMs";
inline constexpr const char* FTP_Top = "FTP_Top";
inline constexpr const char* FTP_Left = "FTP_Left";
inline constexpr const char* VBS_Top = "VBS_Top";
inline constexpr const char* VBS_Left = "VBS_Left";
inline constexpr const char* ImportPath = "ImportPath";
inline constexpr const char* LoadExportInIE = "LoadExportInIE";
// VorlanMain
inline constexpr const char* MF_T = "MF_T";
inline constexpr const char* MF_L = "MF_L";
// AdvOpt
inline constexpr const char* DefaultSN = "DefaultSN";
inline constexpr const char* ChatURL = "ChatURL";
inline constexpr const char* SearchURL = "SearchURL";
inline constexpr const char* UsaTBFN = "UsaTBFN";
inline constexpr const char* JapanTBFN = "JapanTBFN";
inline constexpr const char* UsaRNS = "UsaRNS";
inline constexpr const char* JapanRNS = "JapanRNS";
inline constexpr const char* OnTopSynch = "gblnOnTopSynch";
inline constexpr const char* PageSource = "PageSource";
inline constexpr const char* ArchiveYearUSA = "ArchiveYearUSA";
inline constexpr const char* ArchiveYearJapan = "ArchiveYearJapan";
inline constexpr const char* LocalMirror = "LocalMirror";
inline constexpr const char* WalkCaptured = "WalkCaptured";
// WebBrowser and WebBrwsrTwo window places
inline constexpr const char* NSWE_W = "NSWE_W";
inline constexpr const char* NSWE_H = "NSWE_H";
inline constexpr const char* NSWE_L = "NSWE_L";
inline constexpr const char* NSWE_T = "NSWE_T";
// WebBrwsrTwo
inline constexpr const char* PromptForNewFile = "PromptForNewFile";
inline constexpr const char* UseSiteTitles = "UseSiteTitles";
inline constexpr const char* UseAutoMode = "UseAutoMode";
inline constexpr const char* AServerToolBar = "AServerToolBar";
inline constexpr const char* AButtonToolBar = "AButtonToolBar";
inline constexpr const char* AListToolBar = "AListToolBar";
inline constexpr const char* CmbServer = "cmbServer";
inline constexpr const char* CboSubSWS = "cboSubSWS";
inline constexpr const char* CurrentServer = "CurrentServer";
inline constexpr const char* CurrentSite = "CurrentSite";
inline constexpr const char* DBSiteList = "DBSiteList";
inline constexpr const char* WBT_InPutFile = "WBT_InPutFile";
inline constexpr const char* LastPath = "LastPath";
inline constexpr const char* DBTable = "DBTable";
inline constexpr const char* DBField = "DBField";
inline constexpr const char* QuickScanInFlight = "QuickScanInFlight";
inline constexpr const char* QuickScanPerSecond = "QuickScanPerSecond";
inline constexpr const char* QuickScanTimeout = "QuickScanTimeout";
// CacheManager
inline constexpr const char* FilePattern = "FilePattern";
inline constexpr const char* GetSubDirFiles = "GetSubDirFiles";
inline constexpr const char* PreviousPath = "PreviousPath";
inline constexpr const char* CFWE_W = "CFWE_W";
inline constexpr const char* CFWE_H = "CFWE_H";
inline constexpr const char* CFWE_T = "CFWE_T";
inline constexpr const char* CFWE_L = "CFWE_L";
inline constexpr const char* DefaultOutPutDir = "DefaultOutPutDir";
// NetPic
inline constexpr const char* PrevUrl = "PrevUrl";
inline constexpr const char* AutoInFile = "AutoInFile";
inline constexpr const char* LogServer = "LogServer";
inline constexpr const char* LastExt = "LastExt";
inline constexpr const char* Prefix = "Prefix";
inline constexpr const char* PvStartNumber = "PvStartNumber";
inline constexpr const char* PvEndNumber = "PvEndNumber";
inline constexpr const char* InPutFile = "InPutFile";
inline constexpr const char* UniformValue = "UniformValue";
inline constexpr const char* WBT_Net_PicT = "WBT_Net_PicT";
inline constexpr const char* WBT_Net_PicL = "WBT_Net_PicL";
// FTP
inline constexpr const char* FTPServer = "FTP Server";
} // namespace Key
