#pragma once

#include "modules/music/MusicLibrary.h"

#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// What a music file says of itself. An absent text is one that the file lacks.
struct FileTags
{
    MusicLibrary::Text artist, album, title;
    std::int32_t trackNumber = 0; ///< 0: absent
    std::int32_t discNumber = 0;
    bool isLossless = false;
};

/// A file, as far as it tells whether its tags are still those that were read.
struct TaggedFile
{
    std::string_view path; ///< absolute, UTF-8
    std::uint64_t size = 0;
    std::int64_t modified = 0; ///< as FileStamp has it
};

/// The tags of music files, kept in a file between one reading of the library and the next. One
/// thread at a time; of two processes or threads that store theirs, the later one stays.
class TagIndex
{
public:
    /// Takes over what the file at that path holds, which is ours; nothing of a damaged one.
    explicit TagIndex(const QString &path);

    struct Entry
    {
        TaggedFile file;
        FileTags tags;
        bool isCurrent = false; ///< it was asked for
    };

    /// The entry of a file that has not changed since its tags were read; null where they are not
    /// known. Valid as long as the index. What was not asked for when the index is stored is
    /// dropped. Files that come in the order of the last time are found soonest.
    const Entry *known(const TaggedFile &file);

    /// Reads the file's tags, and keeps them. A file that can't be read, or isn't what its
    /// extension says, has none.
    const Entry &read(const TaggedFile &file);

    /// Writes the index where it is another than the stored one. A failure is logged.
    void store() const;

private:
    bool parse(std::string_view contents);
    Entry *find(std::string_view path);
    std::string_view keep(std::string text) { return m_texts.emplace_back(std::move(text)); }

    const QString m_path;
    QByteArray m_stored; // the texts of the entries that were stored lie there
    std::deque<std::string> m_texts;
    std::vector<Entry> m_old;  // as they were stored
    std::deque<Entry> m_added; // since then
    size_t m_next = 0;         // where the next file is most likely to be found
    std::unordered_map<std::string_view, Entry *> m_byPath; // made when it isn't there
};
