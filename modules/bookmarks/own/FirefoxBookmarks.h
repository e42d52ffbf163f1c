#pragma once

#include "modules/bookmarks/BookmarkSource.h"

/// The folder of Firefox's first profile, absolute; nothing where "profiles.ini" names none. Any
/// thread.
std::optional<QString> defaultFirefoxProfile();

/// The folders of that profile's "bookmarks.html", in its order. Only headings indented by four
/// blanks are folders; bookmarks below other headings go to the last such folder. Empty where there
/// is no usable file. Any thread.
std::vector<BookmarkFolder> parseFirefoxBookmarks();
