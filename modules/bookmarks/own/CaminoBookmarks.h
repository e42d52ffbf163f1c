#pragma once

#include "modules/bookmarks/BookmarkSource.h"

/// Camino's top-level entries as folders, in the file's order, each with its own bookmarks and
/// those of the folders right inside it; an entry without a title is passed over. Empty where there
/// is no usable file. Any thread.
std::vector<BookmarkFolder> parseCaminoBookmarks();
