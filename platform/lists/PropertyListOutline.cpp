#include "platform/lists/PropertyListOutline.h"

using Place = PropertyListOutline::Place;

Place Place::dictionary(Keys keys, Called begin)
{
    Place place(Kind::Dictionary);
    place.m_keys = std::move(keys);
    place.m_begin = std::move(begin);
    return place;
}

Place Place::table(Place entry, std::function<bool(std::string_view)> wants)
{
    Place place(Kind::Dictionary);
    place.m_entry.push_back(std::move(entry));
    place.m_wants = std::move(wants);
    return place;
}

Place Place::array(Place entry)
{
    Place place(Kind::Array);
    place.m_entry.push_back(std::move(entry));
    return place;
}

Place Place::scalar(std::function<void(const PropertyListScalar &)> take)
{
    Place place(Kind::Scalar);
    place.m_take = std::move(take);
    return place;
}

Place Place::presence(Called seen)
{
    Place place(Kind::Presence);
    place.m_begin = std::move(seen);
    return place;
}

const Place *Place::under(std::string_view key) const
{
    if (m_wants)
        return m_wants(key) ? &m_entry.front() : nullptr;
    for (const auto &[name, place] : m_keys) {
        if (name == key)
            return &place;
    }
    return nullptr;
}

FileResult<> PropertyListOutline::read(const QString &path, quint64 limit)
{
    FileResult<> done = readPropertyList(path, limit, *this);
    if (done && !m_rootFits) {
        return FileError{FileError::Operation::Parse, path, 0,
                         QStringLiteral("its root is no dictionary")};
    }
    return done;
}

bool PropertyListOutline::key(std::string_view name)
{
    const Place *open = m_open.back();
    m_placeUnderKey = open ? open->under(name) : nullptr;
    if (!m_placeUnderKey || m_placeUnderKey->m_kind != Place::Kind::Presence)
        return m_placeUnderKey != nullptr;
    m_placeUnderKey->m_begin();
    return false;
}

/// Null where it is to be passed over.
const Place *PropertyListOutline::placeOfValue() const
{
    if (m_open.empty())
        return &m_root;
    const Place *open = m_open.back();
    if (open && open->m_kind == Place::Kind::Array)
        return &open->m_entry.front();
    return open ? m_placeUnderKey : nullptr;
}

void PropertyListOutline::begin(Place::Kind kind)
{
    const Place *place = placeOfValue();
    if (place && place->m_kind != kind)
        place = nullptr;
    if (place && place->m_begin)
        place->m_begin();
    m_rootFits = m_rootFits || place == &m_root;
    m_open.push_back(place);
}

void PropertyListOutline::scalar(const PropertyListScalar &value)
{
    if (const Place *place = placeOfValue(); place && place->m_take)
        place->m_take(value);
}
