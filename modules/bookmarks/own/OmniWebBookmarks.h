#pragma once

#include "modules/bookmarks/BookmarkSource.h"

/// The folders of OmniWeb's bookmark file, in its order. A folder without a title has no bookmarks.
/// Empty where there is no usable file. Any thread.
std::vector<BookmarkFolder> parseOmniWebBookmarks();
