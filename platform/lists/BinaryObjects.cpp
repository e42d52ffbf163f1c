#include "platform/lists/own/BinaryObjects.h"

#include <algorithm>

namespace {

constexpr qsizetype trailerSize = 32;
constexpr unsigned countFollows = 0xF; // the n stands behind, as an integer object

} // namespace

quint64 BinaryObjects::numberIn(QByteArrayView bytes)
{
    quint64 number = 0;
    for (const char byte : bytes)
        number = number << 8 | static_cast<unsigned char>(byte);
    return number;
}

/// So many units of the file; nothing where they reach outside.
std::optional<QByteArrayView> BinaryObjects::part(quint64 position, quint64 count,
                                                  quint64 width) const
{
    const auto size = static_cast<quint64>(m_bytes.size());
    if (position > size || count > (size - position) / width)
        return std::nullopt;
    return m_bytes.sliced(static_cast<qsizetype>(position), static_cast<qsizetype>(count * width));
}

bool BinaryObjects::readTrailer()
{
    if (m_bytes.size() < trailerSize)
        return false;
    const QByteArrayView trailer = m_bytes.last(trailerSize);
    m_positionWidth = numberIn(trailer.sliced(6, 1));
    m_referenceWidth = numberIn(trailer.sliced(7, 1));
    m_objects = numberIn(trailer.sliced(8, 8));
    m_root = numberIn(trailer.sliced(16, 8));
    const auto isWidth = [](quint64 width) {
        return width >= 1 && width <= 8;
    };
    if (!isWidth(m_positionWidth) || !isWidth(m_referenceWidth))
        return false;
    const auto table = part(numberIn(trailer.sliced(24, 8)), m_objects, m_positionWidth);
    m_table = table.value_or(QByteArrayView());
    return table.has_value();
}

/// A count that stands behind an object's first byte; moves the position behind it.
std::optional<quint64> BinaryObjects::followingCount(quint64 &position) const
{
    const auto marker = part(position, 1, 1);
    if (!marker || (numberIn(*marker) & ~3ULL) != Integer << 4)
        return std::nullopt;
    const quint64 width = 1ULL << (numberIn(*marker) & 3);
    const auto bytes = part(position + 1, 1, width);
    if (!bytes)
        return std::nullopt;
    position += 1 + width;
    return numberIn(*bytes);
}

/// Bytes of what the kind has n of; 0 where it has no such count.
quint64 BinaryObjects::unitWidth(unsigned kind) const
{
    switch (kind) {
    case Data:
    case Ascii:
        return 1;
    case Utf16:
        return 2;
    case Array:
    case Set:
        return m_referenceWidth;
    case Dictionary:
        return 2 * m_referenceWidth;
    default:
        return 0;
    }
}

std::optional<BinaryObjects::Object> BinaryObjects::at(quint64 index) const
{
    if (index >= m_objects)
        return std::nullopt;
    const auto width = static_cast<qsizetype>(m_positionWidth);
    quint64 position = numberIn(m_table.sliced(static_cast<qsizetype>(index) * width, width));
    const auto marker = part(position, 1, 1);
    if (!marker)
        return std::nullopt;
    ++position;
    const auto kind = static_cast<unsigned>(numberIn(*marker) >> 4);
    const auto low = static_cast<unsigned>(numberIn(*marker) & 0xF);
    std::optional<quint64> count = low;
    const quint64 unit = unitWidth(kind);
    if (unit > 0 && low == countFollows)
        count = followingCount(position);
    else if (kind == Integer || kind == Real || kind == Date)
        count = 1ULL << low;
    else if (kind == Uid)
        count = low + 1;
    else if (unit == 0)
        count = 0;
    const auto contents = count ? part(position, *count, std::max<quint64>(unit, 1)) : std::nullopt;
    return contents ? std::optional(Object{kind, low, *contents}) : std::nullopt;
}

qsizetype BinaryObjects::countIn(QByteArrayView references) const
{
    return references.size() / static_cast<qsizetype>(m_referenceWidth);
}

quint64 BinaryObjects::reference(QByteArrayView references, qsizetype index) const
{
    const auto width = static_cast<qsizetype>(m_referenceWidth);
    return numberIn(references.sliced(index * width, width));
}
