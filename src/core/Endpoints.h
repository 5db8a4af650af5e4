#pragma once

// Addresses and host names of the services the program works with.
namespace Endpoint {
inline constexpr const char* UsaSiteLabel = "geocities.com";
inline constexpr const char* JapanSiteLabel = "geocities.co.jp";
inline constexpr const char* UsaSiteUrl = "http://www.geocities.com";
inline constexpr const char* JapanSiteUrl = "http://www.geocities.co.jp";
inline constexpr const char* TripodBaseUrl = "http://members.tripod.com/~";
inline constexpr const char* AolBaseUrl = "http://members.aol.com/~";
inline constexpr const char* SprintmailBaseUrl = "http://home.sprintmail.com/~";
inline constexpr const char* EarthLinkBaseUrl = "http://home.earthlink.net/~";
inline constexpr const char* XoomBaseUrl = "http://members.xoom.com/";
inline constexpr const char* AngelfireBaseUrl = "http://www.angelfire.com/";
inline constexpr const char* TerraVistaBaseUrl = "http://www.terravista.pt/";
inline constexpr const char* TerraVistaBrasilBaseUrl = "http://www.terravista.com.br/";
inline constexpr const char* GeoCitiesFtpHost = "ftp.geocities.com";
inline constexpr const char* XoomFtpHost = "ftp.xoom.com";
inline constexpr const char* TripodFtpHost = "ftp.tripod.com";
inline constexpr const char* FormMailTarget = "MAILTO:yourname@yourisp.com";
inline constexpr const char* ProductHomeUrl = "http://www.example.org/vorlan/";
inline constexpr const char* AltaVistaUrl = "altavista.com";
} // namespace Endpoint
