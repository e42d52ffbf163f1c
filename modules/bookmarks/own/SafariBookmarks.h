#pragma once

#include "modules/bookmarks/BookmarkSource.h"

/// Safari's top-level folders in file order, folders of the same title included. A folder's
/// bookmarks are its own and those of the folders right inside it. Empty where there is no usable
/// file. Any thread.
std::vector<BookmarkFolder> readSafariBookmarks();
