#include "modules/music/own/TagIndex.h"

#include "modules/music/own/TagReader.h"
#include "platform/files/FileManager.h"
#include "sync/Log.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace {

constexpr std::string_view header = "Caravel tags 1\n";
constexpr quint64 indexLimit = 1ULL << 30; // bytes

// What stands before a record's four texts, in this machine's own byte order.
struct Fixed
{
    std::uint64_t size;
    std::int64_t modified;
    std::int32_t trackNumber, discNumber;
    std::array<std::uint32_t, 4> lengths; // path, artist, album, title
    std::uint32_t isLossless, unused;
};
constexpr std::uint32_t absent = UINT32_MAX;

/// Cuts a text off the front; nothing where the rest is too short.
std::optional<MusicLibrary::Text> take(std::string_view &rest, std::uint32_t length)
{
    if (length == absent)
        return MusicLibrary::Text();
    if (length > rest.size())
        return std::nullopt;
    const std::string_view text = rest.substr(0, length);
    rest.remove_prefix(length);
    return text;
}

MusicLibrary::Text orAbsent(std::string_view text)
{
    return text.empty() ? std::nullopt : MusicLibrary::Text(text);
}

void append(QByteArray &out, const TaggedFile &file, const FileTags &tags)
{
    const MusicLibrary::Text texts[] = {file.path, tags.artist, tags.album, tags.title};
    Fixed fixed{.size = file.size,
                .modified = file.modified,
                .trackNumber = tags.trackNumber,
                .discNumber = tags.discNumber,
                .lengths = {},
                .isLossless = tags.isLossless ? 1U : 0U,
                .unused = 0};
    for (size_t i = 0; i < std::size(texts); ++i)
        fixed.lengths[i] = texts[i] ? static_cast<std::uint32_t>(texts[i]->size()) : absent;
    out.append(reinterpret_cast<const char *>(&fixed), sizeof fixed);
    for (const MusicLibrary::Text &text : texts) {
        if (text)
            out.append(text->data(), static_cast<qsizetype>(text->size()));
    }
}

} // namespace

TagIndex::TagIndex(const QString &path)
    : m_path(path)
    , m_stored(files().readFile(path, indexLimit).valueOr({}))
{
    if (!parse({m_stored.constData(), static_cast<size_t>(m_stored.size())})) {
        m_old.clear();
    }
}

bool TagIndex::parse(std::string_view contents)
{
    if (!contents.starts_with(header))
        return contents.empty();
    contents.remove_prefix(header.size());
    m_old.reserve(contents.size() / 128);
    while (!contents.empty()) {
        Fixed fixed;
        if (contents.size() < sizeof fixed)
            return false;
        std::memcpy(&fixed, contents.data(), sizeof fixed);
        contents.remove_prefix(sizeof fixed);
        std::array<MusicLibrary::Text, 4> texts;
        for (size_t i = 0; i < texts.size(); ++i) {
            const auto text = take(contents, fixed.lengths[i]);
            if (!text || (i == 0 && !*text))
                return false;
            texts[i] = *text;
        }
        m_old.push_back({{*texts[0], fixed.size, fixed.modified},
                         {texts[1], texts[2], texts[3], fixed.trackNumber, fixed.discNumber,
                          fixed.isLossless != 0}});
    }
    return true;
}

TagIndex::Entry *TagIndex::find(std::string_view path)
{
    if (m_next < m_old.size() && m_old[m_next].file.path == path)
        return &m_old[m_next++];
    if (m_byPath.empty()) {
        m_byPath.reserve(m_old.size());
        for (Entry &entry : m_old)
            m_byPath[entry.file.path] = &entry;
    }
    const auto found = m_byPath.find(path);
    if (found == m_byPath.end())
        return nullptr;
    m_next = static_cast<size_t>(found->second - m_old.data()) + 1;
    return found->second;
}

const TagIndex::Entry *TagIndex::known(const TaggedFile &file)
{
    Entry *entry = find(file.path);
    if (!entry || entry->file.size != file.size || entry->file.modified != file.modified)
        return nullptr;
    entry->isCurrent = true;
    return entry;
}

const TagIndex::Entry &TagIndex::read(const TaggedFile &file)
{
    ReadTags tags = readTags(file.path);
    return m_added.emplace_back(
        Entry{.file = {keep(std::string(file.path)), file.size, file.modified},
              .tags = {orAbsent(keep(std::move(tags.artist))),
                       orAbsent(keep(std::move(tags.album))), orAbsent(keep(std::move(tags.title))),
                       tags.trackNumber, tags.discNumber, tags.isLossless},
              .isCurrent = true});
}

void TagIndex::store() const
{
    if (m_added.empty() && std::ranges::all_of(m_old, &Entry::isCurrent))
        return;
    QByteArray contents(header.data(), static_cast<qsizetype>(header.size()));
    for (const Entry &entry : m_old) {
        if (entry.isCurrent)
            append(contents, entry.file, entry.tags);
    }
    for (const Entry &entry : m_added)
        append(contents, entry.file, entry.tags);
    if (const auto written = files().writeAtomically(m_path, contents); !written)
        qCWarning(lcModules).noquote() << "Can't keep the tags:" << written.error().description();
}
