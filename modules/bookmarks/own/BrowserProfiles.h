#pragma once

#include <QString>

/// Where the browsers of a Linux desktop keep bookmarks.
namespace BrowserProfiles {

/// The database of the profile that Firefox opens by default, else of another; empty where there is
/// none. Installed by the distribution, as a Snap or as a Flatpak. "bookmarkProfile" names another.
QString firefoxDatabase();

/// The file of the first profile of Chromium, Chrome, Brave and Edge, in this order, then of
/// Chromium as a Snap or a Flatpak; as above.
QString chromiumFile();

} // namespace BrowserProfiles
