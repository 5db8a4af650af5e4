#include "WbtBuiltIns.h"

#include "core/Endpoints.h"

QStringList WbtBuiltInServers()
{
    return {Endpoint::TripodBaseUrl, Endpoint::AolBaseUrl, Endpoint::SprintmailBaseUrl,
            Endpoint::EarthLinkBaseUrl, Endpoint::XoomBaseUrl};
}

QStringList WbtBuiltInBadTitles()
{
    return {"Angelfire page not found",
            "This is the Title/Header",
            "Tripod: Defunct Link",
            "Welcome to Tripod",
            "HTTP 404 Not Found",
            Endpoint::SprintmailBaseUrl,
            Endpoint::EarthLinkBaseUrl,
            "WELCOME To your new Home Page",
            "Cannot find server",
            "Not Found",
            "404 Not Found",
            "XOOM Member Page Not Found"};
}
