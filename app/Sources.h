#pragma once

#include <QVariantList>

/// The sources that playlists, albums and bookmarks can come from, as Protocol::sources tells of
/// them: by kind, then by the number of their setting. Looks at the disk at each call. Main thread.
namespace Sources {

QVariantList rows();

} // namespace Sources
