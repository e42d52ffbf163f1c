#include "modules/photos/PhotoLibrary.h"

#include "platform/lists/PropertyListReader.h"
#include "sync/Log.h"

namespace {

constexpr quint64 libraryLimit = 1ULL << 30; // bytes

QString toText(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

// Follows the list's shape with a stack of places; what stands where it doesn't belong opens a
// place in which everything is passed over.
class PhotoLibrary::Reader : public PropertyListHandler
{
public:
    Reader(PhotoLibrary &library, Part part)
        : m_library(library)
        , m_part(part)
    {
    }

    bool rootIsDictionary() const { return m_rootIsDictionary; }

    bool key(std::string_view name) override;
    void beginDictionary() override;
    void endDictionary() override { m_places.pop_back(); }
    void beginArray() override;
    void endArray() override { m_places.pop_back(); }
    void scalar(const PropertyListScalar &value) override;

private:
    enum class In { Nothing, Root, Albums, Album, Keys, Images, Image, Unknown };

    In place() const { return m_places.empty() ? In::Nothing : m_places.back(); }
    void albumScalar(const PropertyListScalar &value);
    void imageScalar(const PropertyListScalar &value);

    PhotoLibrary &m_library;
    const Part m_part;
    std::vector<In> m_places;
    std::string m_key; // read last in the open dictionary
    Image *m_image = nullptr;
    bool m_rootIsDictionary = false;
};

bool PhotoLibrary::Reader::key(std::string_view name)
{
    m_key = name;
    switch (place()) {
    case In::Root:
        return name == "List of Albums" ||
               (name == "Master Image List" && m_part == Part::Everything);
    case In::Album:
        return name == "AlbumName" || name == "KeyList" || name == "Album Type" || name == "Master";
    case In::Images:
        return true;
    case In::Image:
        return name == "Caption" || name == "ImagePath";
    default:
        return false;
    }
}

void PhotoLibrary::Reader::beginDictionary()
{
    In opened = In::Unknown;
    if (m_places.empty()) {
        opened = In::Root;
        m_rootIsDictionary = true;
    } else if (place() == In::Root && m_key == "Master Image List") {
        opened = In::Images;
    } else if (place() == In::Albums) {
        opened = In::Album;
        m_library.m_albums.emplace_back();
    } else if (place() == In::Images) {
        opened = In::Image;
        m_image = &m_library.m_images[toText(m_key)];
    }
    m_places.push_back(opened);
}

void PhotoLibrary::Reader::beginArray()
{
    In opened = In::Unknown;
    if (place() == In::Root && m_key == "List of Albums")
        opened = In::Albums;
    else if (place() == In::Album && m_key == "KeyList")
        opened = In::Keys;
    m_places.push_back(opened);
}

void PhotoLibrary::Reader::scalar(const PropertyListScalar &value)
{
    if (place() == In::Album)
        albumScalar(value);
    else if (place() == In::Image && value.type == PropertyListType::String)
        imageScalar(value);
    else if (place() == In::Keys) {
        Album &album = m_library.m_albums.back();
        ++album.size;
        if (m_part == Part::Everything)
            album.keys.append(value.type == PropertyListType::String ? toText(value.text)
                                                                     : QString());
    }
}

void PhotoLibrary::Reader::albumScalar(const PropertyListScalar &value)
{
    Album &album = m_library.m_albums.back();
    const bool isString = value.type == PropertyListType::String;
    if (m_key == "AlbumName" && isString)
        album.name = toText(value.text);
    else if (m_key == "Album Type" && isString)
        album.type = toText(value.text);
    else if (m_key == "Master")
        album.isMaster = (value.type == PropertyListType::Boolean && value.text == "true") ||
                         value.toInteger() != 0;
}

void PhotoLibrary::Reader::imageScalar(const PropertyListScalar &value)
{
    if (m_key == "Caption")
        m_image->caption = toText(value.text);
    else
        m_image->path = toText(value.text);
}

std::optional<PhotoLibrary> PhotoLibrary::read(const QString &path, Part part)
{
    PhotoLibrary library;
    Reader reader(library, part);
    PropertyListError error;
    const bool done = readPropertyList(path, libraryLimit, reader, &error);
    if (done && !reader.rootIsDictionary())
        error = {QStringLiteral("its root is no dictionary")};
    if (error)
        qCWarning(lcModules).noquote() << "Can't read the photo library" << error.in(path);
    if (!done || error)
        return std::nullopt;
    return library;
}

const PhotoLibrary::Image *PhotoLibrary::image(const QString &key) const
{
    const auto found = m_images.constFind(key);
    return found == m_images.constEnd() ? nullptr : &*found;
}
