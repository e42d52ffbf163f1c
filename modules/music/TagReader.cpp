#include "modules/music/own/TagReader.h"

#include "platform/files/FileManager.h"
#include "util/PathComponents.h"

#include <taglib/id3v2framefactory.h>
#include <taglib/mp4file.h>
#include <taglib/mpegfile.h>
#include <taglib/tfilestream.h>
#include <taglib/tpropertymap.h>
#include <taglib/wavfile.h>

#include <algorithm>
#include <memory>

namespace {

// Names on the stick are far shorter; a text of megabytes would only fill the index.
constexpr int longestText = 400; // characters

std::string text(const TagLib::String &value)
{
    return value.stripWhiteSpace().substr(0, longestText).to8Bit(true);
}

std::int32_t number(unsigned int value)
{
    return static_cast<std::int32_t>(std::min(value, 99999U));
}

bool isLossless(TagLib::MP4::File &file)
{
    const TagLib::MP4::Properties *properties = file.audioProperties();
    return properties && properties->codec() == TagLib::MP4::Properties::ALAC;
}

// A WAV file has its tags in one of two forms.
const TagLib::Tag &tagOf(const TagLib::File &file)
{
    const auto *wav = dynamic_cast<const TagLib::RIFF::WAV::File *>(&file);
    return wav && !wav->hasID3v2Tag() && wav->hasInfoTag() ? *wav->InfoTag() : *file.tag();
}

/// Null for an extension of another kind. The stream outlives it.
std::unique_ptr<TagLib::File> opened(QStringView extension, TagLib::IOStream *stream)
{
    const auto is = [extension](QStringView one) {
        return extension.compare(one, Qt::CaseInsensitive) == 0;
    };
    if (is(u"MP3") || is(u"AAC"))
        return std::make_unique<TagLib::MPEG::File>(stream, TagLib::ID3v2::FrameFactory::instance(),
                                                    false);
    if (is(u"M4A") || is(u"MP4"))
        return std::make_unique<TagLib::MP4::File>(stream, true);
    if (is(u"WAV"))
        return std::make_unique<TagLib::RIFF::WAV::File>(stream, false);
    return nullptr;
}

} // namespace

ReadTags readTags(std::string_view path)
{
    const QString name = QString::fromUtf8(path.data(), static_cast<qsizetype>(path.size()));
    // Through our own layer, which never waits at a pipe.
    const int descriptor = files().openForReading(name);
    if (descriptor < 0)
        return {};
    TagLib::FileStream stream(descriptor, true); // closes it
    const auto file = opened(PathComponents::extensionOf(name), &stream);
    if (!file || !file->isValid() || !file->tag())
        return {};
    const TagLib::Tag &tag = tagOf(*file);
    ReadTags tags{.artist = text(tag.artist()),
                  .album = text(tag.album()),
                  .title = text(tag.title()),
                  .trackNumber = number(tag.track())};
    const TagLib::StringList disc = file->properties()["DISCNUMBER"];
    if (!disc.isEmpty()) // "1/2"
        tags.discNumber = number(static_cast<unsigned int>(std::max(0, disc.front().toInt())));
    if (auto *mp4 = dynamic_cast<TagLib::MP4::File *>(file.get()))
        tags.isLossless = isLossless(*mp4);
    return tags;
}
