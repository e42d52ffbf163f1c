#pragma once

#include "modules/music/MusicLibrary.h"

#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

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

    /// The tags of a file that has not changed since they were read; null where they are not known.
    /// Valid as long as the index. What was not asked for when the index is stored is dropped.
    const FileTags *known(const TaggedFile &file);

    /// Reads the file's tags, and keeps them. A file that can't be read, or isn't what its
    /// extension says, has none.
    const FileTags &read(const TaggedFile &file);

    /// Writes the index where it is another than the stored one. A failure is logged.
    void store() const;

private:
    struct Record
    {
        TaggedFile file;
        FileTags tags;
        bool isCurrent = false;
    };

    bool parse(std::string_view contents);
    std::string_view keep(std::string text) { return m_texts.emplace_back(std::move(text)); }

    const QString m_path;
    QByteArray m_stored; // the texts of the records that were stored lie there
    std::deque<std::string> m_texts;
    std::deque<Record> m_records;
    std::unordered_map<std::string_view, Record *> m_byPath;
    bool m_isChanged = false;
};
