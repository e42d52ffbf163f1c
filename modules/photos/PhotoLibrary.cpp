#include "modules/photos/PhotoLibrary.h"

#include "platform/lists/PropertyList.h"
#include "platform/lists/PropertyListOutline.h"
#include "sync/Log.h"

namespace {

constexpr quint64 libraryLimit = 1ULL << 30; // bytes

bool isTrue(const PropertyListScalar &value)
{
    const bool *flag = std::get_if<bool>(&value);
    const std::int64_t *number = std::get_if<std::int64_t>(&value);
    return (flag && *flag) || (number && *number != 0);
}

} // namespace

class PhotoLibrary::Reader
{
public:
    Reader(PhotoLibrary &library, Part part)
        : m_library(library)
        , m_outline(root(part))
    {
    }

    FileResult<> read(const QString &path) { return m_outline.read(path, libraryLimit); }

private:
    using Place = PropertyListOutline::Place;

    Place root(Part part);
    Place albums(Part part);
    Place images();
    Album &album() { return m_library.m_albums.back(); }

    /// A text that goes where `target` says at that moment.
    template <typename Target>
    static Place text(Target target)
    {
        return Place::value<std::string_view>(
            [target](std::string_view text) { target() = QString::fromUtf8(text); });
    }

    PhotoLibrary &m_library;
    QString m_imageKey; // read last
    Image *m_image = nullptr;
    PropertyListOutline m_outline;
};

PhotoLibrary::Reader::Place PhotoLibrary::Reader::root(Part part)
{
    Place::Keys keys{{"List of Albums", albums(part)}};
    if (part == Part::Everything)
        keys.emplace_back("Master Image List", images());
    return Place::dictionary(std::move(keys));
}

PhotoLibrary::Reader::Place PhotoLibrary::Reader::albums(Part part)
{
    const Place imageKey = Place::scalar([this, part](const PropertyListScalar &value) {
        ++album().size;
        const auto *text = std::get_if<std::string_view>(&value);
        if (part == Part::Everything)
            album().keys.append(text ? QString::fromUtf8(*text) : QString());
    });
    const Place each = Place::dictionary(
        {
            {"AlbumName", text([this]() -> auto & { return album().name; })},
            {"Album Type", text([this]() -> auto & { return album().type; })},
            {"KeyList", Place::array(imageKey)},
            {"Master", Place::scalar([this](const PropertyListScalar &value) {
                 album().isMaster = isTrue(value);
             })},
        },
        [this] { m_library.m_albums.emplace_back(); });
    return Place::array(each);
}

PhotoLibrary::Reader::Place PhotoLibrary::Reader::images()
{
    const Place each = Place::dictionary(
        {
            {"Caption", text([this]() -> auto & { return m_image->caption; })},
            {"ImagePath", text([this]() -> auto & { return m_image->path; })},
        },
        [this] { m_image = &m_library.m_images[m_imageKey]; });
    return Place::table(each, [this](std::string_view key) {
        m_imageKey = QString::fromUtf8(key);
        return true;
    });
}

FileResult<PhotoLibrary> PhotoLibrary::read(const QString &path, Part part)
{
    PhotoLibrary library;
    const FileResult<> done = Reader(library, part).read(path);
    if (done)
        return library;
    if (!done.error().isMissing()) {
        qCWarning(lcModules).noquote()
            << "Can't read the photo library" << PropertyList::logText(done.error());
    }
    return done.error();
}

const PhotoLibrary::Image *PhotoLibrary::image(const QString &key) const
{
    const auto found = m_images.constFind(key);
    return found == m_images.constEnd() ? nullptr : &*found;
}
