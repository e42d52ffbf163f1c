#include "platform/lists/own/PropertyListParts.h"

#include <QByteArrayView>
#include <QtEndian>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

using namespace PropertyListParts;

namespace {

// A binary list is "bplist00", its objects, a table of their positions, and a trailer: six bytes of
// no matter, the width of a position and of a reference in bytes, then in eight bytes each the
// number of objects, the root and the table's position. A reference is an index into the table.
// Numbers are big-endian.
constexpr qsizetype trailerSize = 32;

// An object's first byte: its kind, and in the lower half what the kind makes of it.
enum Kind : unsigned {
    Plain = 0x0,     // the lower half tells which value
    Integer = 0x1,   // in 2^n bytes: of 8 and 16 signed, else unsigned
    Real = 0x2,      // in 2^n bytes
    Date = 0x3,      // a real of 8 bytes: seconds since 2001 began in UTC
    Data = 0x4,      // n bytes
    Ascii = 0x5,     // n characters
    Utf16 = 0x6,     // n units
    Uid = 0x8,       // an unsigned number in n + 1 bytes
    Array = 0xA,     // n references
    Set = 0xC,       // the same
    Dictionary = 0xD // n references to keys, then n to values
};
constexpr unsigned falseValue = 0x8;
constexpr unsigned trueValue = 0x9;
constexpr unsigned countFollows = 0xF; // the n stands behind, as an integer object

quint64 numberIn(QByteArrayView bytes)
{
    quint64 number = 0;
    for (const char byte : bytes)
        number = number << 8 | static_cast<unsigned char>(byte);
    return number;
}

/// The real in 4 or 8 bytes.
double realIn(QByteArrayView bytes)
{
    if (bytes.size() == sizeof(float))
        return std::bit_cast<float>(static_cast<quint32>(numberIn(bytes)));
    return std::bit_cast<double>(numberIn(bytes));
}

/// Tells a handler of a binary list what it would have heard of the same list in XML. An object may
/// be referred to many times, by itself included, and is told each time: what a list unfolds to has
/// a limit of its own, without which a few hundred bytes would take all memory.
class BinaryReader
{
public:
    /// `budget`: bytes that the unfolded list may weigh.
    BinaryReader(QByteArrayView bytes, quint64 budget, PropertyListHandler &handler)
        : m_bytes(bytes)
        , m_budget(budget)
        , m_left(budget)
        , m_handler(handler)
    {
    }

    /// Empty when all of the list was told.
    QString problem();

private:
    struct Object
    {
        unsigned kind;
        unsigned low;
        QByteArrayView contents;
    };

    std::optional<QByteArrayView> part(quint64 position, quint64 count, quint64 width) const;
    bool readTrailer();
    std::optional<quint64> followingCount(quint64 &position) const;
    quint64 unitWidth(unsigned kind) const;
    std::optional<Object> objectAt(quint64 index) const;
    std::optional<Object> take(quint64 index);
    quint64 reference(QByteArrayView references, qsizetype index) const;

    // Each tells the handler of one value; false where that failed.
    bool value(quint64 index, std::size_t depth);
    bool scalar(const Object &object);
    bool plain(const Object &object);
    bool integer(QByteArrayView bytes);
    bool date(QByteArrayView bytes);
    bool uid(QByteArrayView bytes);
    bool array(QByteArrayView references, std::size_t depth);
    bool dictionary(QByteArrayView references, std::size_t depth);

    std::string_view text(const Object &object);
    bool tell(const PropertyListScalar &value);
    bool tellUnsigned(quint64 number);
    bool fail(const QString &text);
    bool failOverKind() { return fail(QStringLiteral("a value of an unknown kind")); }

    const QByteArrayView m_bytes;
    const quint64 m_budget;
    quint64 m_left; // of the budget
    PropertyListHandler &m_handler;
    quint64 m_positionWidth = 0;
    quint64 m_referenceWidth = 0;
    quint64 m_objects = 0;
    quint64 m_root = 0;
    QByteArrayView m_table; // of positions
    QByteArray m_text;      // the last one that had to be converted
    QString m_problem;
};

QString BinaryReader::problem()
{
    if (!readTrailer())
        fail(QStringLiteral("damaged trailer"));
    else
        value(m_root, 1);
    return m_problem;
}

bool BinaryReader::fail(const QString &text)
{
    m_problem = QStringLiteral("binary list: ") + text;
    return false;
}

/// So many units of the file; nothing where they reach outside.
std::optional<QByteArrayView> BinaryReader::part(quint64 position, quint64 count,
                                                 quint64 width) const
{
    const auto size = static_cast<quint64>(m_bytes.size());
    if (position > size || count > (size - position) / width)
        return std::nullopt;
    return m_bytes.sliced(static_cast<qsizetype>(position), static_cast<qsizetype>(count * width));
}

bool BinaryReader::readTrailer()
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
std::optional<quint64> BinaryReader::followingCount(quint64 &position) const
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
quint64 BinaryReader::unitWidth(unsigned kind) const
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

/// Nothing where there is no such object, or it reaches outside the file.
std::optional<BinaryReader::Object> BinaryReader::objectAt(quint64 index) const
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

/// An object to tell of, for which the budget pays; nothing where that failed.
std::optional<BinaryReader::Object> BinaryReader::take(quint64 index)
{
    constexpr quint64 weightOfNone = 32; // of every value, besides the bytes that it holds
    const std::optional<Object> object = objectAt(index);
    if (!object) {
        fail(QStringLiteral("object %1 lies outside the file").arg(index));
        return std::nullopt;
    }
    const quint64 weight = weightOfNone + static_cast<quint64>(object->contents.size());
    if (weight > m_left) {
        fail(QStringLiteral("unfolds to more than %1 bytes").arg(m_budget));
        return std::nullopt;
    }
    m_left -= weight;
    return object;
}

quint64 BinaryReader::reference(QByteArrayView references, qsizetype index) const
{
    const auto width = static_cast<qsizetype>(m_referenceWidth);
    return numberIn(references.sliced(index * width, width));
}

bool BinaryReader::value(quint64 index, std::size_t depth)
{
    const std::optional<Object> object = take(index);
    if (!object)
        return false;
    const bool isDictionary = object->kind == Dictionary;
    if (!isDictionary && object->kind != Array && object->kind != Set)
        return scalar(*object);
    // A container inside itself ends here too.
    if (depth > depthLimit)
        return fail(tooDeepText());
    return isDictionary ? dictionary(object->contents, depth) : array(object->contents, depth);
}

bool BinaryReader::scalar(const Object &object)
{
    const QByteArrayView bytes = object.contents;
    switch (object.kind) {
    case Plain:
        return plain(object);
    case Integer:
        return integer(bytes);
    case Real:
        return bytes.size() == 4 || bytes.size() == 8 ? tell(realIn(bytes)) : failOverKind();
    case Date:
        return date(bytes);
    case Data:
        return tell(bytes.toByteArray());
    case Ascii:
    case Utf16:
        return tell(text(object));
    case Uid:
        return uid(bytes);
    default:
        return failOverKind();
    }
}

bool BinaryReader::plain(const Object &object)
{
    const bool isTrue = object.low == trueValue;
    return isTrue || object.low == falseValue ? tell(isTrue) : failOverKind();
}

bool BinaryReader::integer(QByteArrayView bytes)
{
    if (bytes.size() > 16)
        return failOverKind();
    const quint64 low = numberIn(bytes.last(std::min<qsizetype>(bytes.size(), 8)));
    const auto asSigned = static_cast<qint64>(low);
    // The bits above: written out, or the sign of eight bytes.
    const quint64 sign = asSigned < 0 ? ~0ULL : 0;
    const quint64 high = bytes.size() == 16 ? numberIn(bytes.first(8)) : sign;
    if (high == sign)
        return tell(std::int64_t(asSigned));
    return high == 0 ? tellUnsigned(low) : fail(QStringLiteral("an integer of over 64 bits"));
}

bool BinaryReader::date(QByteArrayView bytes)
{
    if (bytes.size() != 8)
        return failOverKind();
    constexpr double since1970 = 978307200;
    constexpr double firstOfYear1 = -62135596800;
    constexpr double firstOfYear10000 = 253402300800;
    const double seconds = std::trunc(realIn(bytes)) + since1970;
    if (!(seconds >= firstOfYear1 && seconds < firstOfYear10000)) // a NaN is no date either
        return fail(QStringLiteral("a date outside the years 1 to 9999"));
    return tell(QDateTime::fromSecsSinceEpoch(static_cast<qint64>(seconds), Qt::UTC));
}

/// XML has no such type; there it is this dictionary.
bool BinaryReader::uid(QByteArrayView bytes)
{
    if (bytes.size() > 8)
        return failOverKind();
    m_handler.beginDictionary();
    if (m_handler.key("CF$UID"))
        tellUnsigned(numberIn(bytes));
    m_handler.endDictionary();
    return true;
}

bool BinaryReader::array(QByteArrayView references, std::size_t depth)
{
    m_handler.beginArray();
    const qsizetype count = references.size() / static_cast<qsizetype>(m_referenceWidth);
    for (qsizetype i = 0; i < count; ++i) {
        if (!value(reference(references, i), depth + 1))
            return false;
    }
    m_handler.endArray();
    return true;
}

bool BinaryReader::dictionary(QByteArrayView references, std::size_t depth)
{
    m_handler.beginDictionary();
    const qsizetype count = references.size() / static_cast<qsizetype>(m_referenceWidth) / 2;
    for (qsizetype i = 0; i < count; ++i) {
        const std::optional<Object> key = take(reference(references, i));
        if (!key)
            return false;
        if (key->kind != Ascii && key->kind != Utf16)
            return fail(QStringLiteral("a key that is no text"));
        if (m_handler.key(text(*key)) && !value(reference(references, count + i), depth + 1))
            return false;
    }
    m_handler.endDictionary();
    return true;
}

/// As UTF-8, until the next text.
std::string_view BinaryReader::text(const Object &object)
{
    const QByteArrayView bytes = object.contents;
    if (object.kind == Ascii)
        return {bytes.data(), static_cast<std::size_t>(bytes.size())};
    QString units(bytes.size() / 2, Qt::Uninitialized);
    qFromBigEndian<quint16>(bytes.data(), units.size(), units.data());
    m_text = units.toUtf8();
    return {m_text.constData(), static_cast<std::size_t>(m_text.size())};
}

bool BinaryReader::tell(const PropertyListScalar &value)
{
    m_handler.scalar(value);
    return true;
}

bool BinaryReader::tellUnsigned(quint64 number)
{
    const bool fitsSigned = number <= quint64(std::numeric_limits<std::int64_t>::max());
    return fitsSigned ? tell(std::int64_t(number)) : tell(std::uint64_t(number));
}

} // namespace

FileResult<> PropertyListParts::readBinary(ListFile &file, quint64 limit,
                                           PropertyListHandler &handler)
{
    constexpr qsizetype chunk = 1 << 20;
    QByteArray bytes;
    for (;;) {
        const qsizetype known = bytes.size();
        bytes.resize(known + chunk);
        const FileResult<size_t> count = file.read(bytes.data() + known, chunk);
        if (!count)
            return count.error();
        bytes.truncate(known + static_cast<qsizetype>(*count));
        if (static_cast<quint64>(bytes.size()) > limit)
            return file.tooLong(limit);
        if (*count == 0)
            break;
    }
    constexpr quint64 smallestBudget = 1 << 20; // a caller's limit for text may be tiny
    const QString problem = BinaryReader(bytes, std::max(limit, smallestBudget), handler).problem();
    if (!problem.isEmpty())
        return file.damage(problem);
    return {};
}
