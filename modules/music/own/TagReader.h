#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// A music file's tags as TagLib finds them; texts are UTF-8 and empty where there is none.
struct ReadTags
{
    std::string artist, album, title;
    std::int32_t trackNumber = 0;
    std::int32_t discNumber = 0;
    bool isLossless = false;
};

/// Of an MP3, MP4 (also .m4a), AAC or WAV file, told by its extension; the path is UTF-8. All empty
/// where the file can't be read or is another than that. Any thread.
ReadTags readTags(std::string_view path);
