#include "platform/lists/own/BinaryObjects.h"
#include "platform/lists/own/PropertyListParts.h"

#include <QtEndian>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

using namespace PropertyListParts;

namespace {

constexpr unsigned falseValue = 0x8; // of the plain ones
constexpr unsigned trueValue = 0x9;

/// The real in 4 or 8 bytes.
double realIn(QByteArrayView bytes)
{
    if (bytes.size() == sizeof(float))
        return std::bit_cast<float>(static_cast<quint32>(BinaryObjects::numberIn(bytes)));
    return std::bit_cast<double>(BinaryObjects::numberIn(bytes));
}

/// Tells a handler of a binary list what it would have heard of the same list in XML. An object may
/// be referred to many times, by itself included, and is told each time: what a list unfolds to has
/// a limit of its own, without which a few hundred bytes would take all memory.
class BinaryReader
{
public:
    /// `budget`: bytes that the unfolded list may weigh.
    BinaryReader(QByteArrayView bytes, quint64 budget, PropertyListHandler &handler)
        : m_objects(bytes)
        , m_budget(budget)
        , m_left(budget)
        , m_handler(handler)
    {
    }

    /// Empty when all of the list was told.
    QString problem();

private:
    using Object = BinaryObjects::Object;

    std::optional<Object> take(quint64 index);

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

    BinaryObjects m_objects;
    const quint64 m_budget;
    quint64 m_left; // of the budget
    PropertyListHandler &m_handler;
    QByteArray m_text; // the last one that had to be converted
    QString m_problem;
};

QString BinaryReader::problem()
{
    if (!m_objects.readTrailer())
        fail(QStringLiteral("damaged trailer"));
    else
        value(m_objects.root(), 1);
    return m_problem;
}

bool BinaryReader::fail(const QString &text)
{
    m_problem = QStringLiteral("binary list: ") + text;
    return false;
}

/// An object to tell of, for which the budget pays; nothing where that failed.
std::optional<BinaryObjects::Object> BinaryReader::take(quint64 index)
{
    constexpr quint64 weightOfNone = 32; // of every value, besides the bytes that it holds
    const std::optional<Object> object = m_objects.at(index);
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

bool BinaryReader::value(quint64 index, std::size_t depth)
{
    const std::optional<Object> object = take(index);
    if (!object)
        return false;
    const bool isDictionary = object->kind == BinaryObjects::Dictionary;
    if (!isDictionary && object->kind != BinaryObjects::Array && object->kind != BinaryObjects::Set)
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
    case BinaryObjects::Plain:
        return plain(object);
    case BinaryObjects::Integer:
        return integer(bytes);
    case BinaryObjects::Real:
        return bytes.size() == 4 || bytes.size() == 8 ? tell(realIn(bytes)) : failOverKind();
    case BinaryObjects::Date:
        return date(bytes);
    case BinaryObjects::Data:
        return tell(bytes.toByteArray());
    case BinaryObjects::Ascii:
    case BinaryObjects::Utf16:
        return tell(text(object));
    case BinaryObjects::Uid:
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
    const quint64 low = BinaryObjects::numberIn(bytes.last(std::min<qsizetype>(bytes.size(), 8)));
    const auto asSigned = static_cast<qint64>(low);
    // The bits above: written out, or the sign of eight bytes.
    const quint64 sign = asSigned < 0 ? ~0ULL : 0;
    const quint64 high = bytes.size() == 16 ? BinaryObjects::numberIn(bytes.first(8)) : sign;
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
        tellUnsigned(BinaryObjects::numberIn(bytes));
    m_handler.endDictionary();
    return true;
}

bool BinaryReader::array(QByteArrayView references, std::size_t depth)
{
    m_handler.beginArray();
    const qsizetype count = m_objects.countIn(references);
    for (qsizetype i = 0; i < count; ++i) {
        if (!value(m_objects.reference(references, i), depth + 1))
            return false;
    }
    m_handler.endArray();
    return true;
}

bool BinaryReader::dictionary(QByteArrayView references, std::size_t depth)
{
    m_handler.beginDictionary();
    const qsizetype count = m_objects.countIn(references) / 2;
    for (qsizetype i = 0; i < count; ++i) {
        const std::optional<Object> key = take(m_objects.reference(references, i));
        if (!key)
            return false;
        if (key->kind != BinaryObjects::Ascii && key->kind != BinaryObjects::Utf16)
            return fail(QStringLiteral("a key that is no text"));
        if (m_handler.key(text(*key)) &&
            !value(m_objects.reference(references, count + i), depth + 1))
            return false;
    }
    m_handler.endDictionary();
    return true;
}

/// As UTF-8, until the next text.
std::string_view BinaryReader::text(const Object &object)
{
    const QByteArrayView bytes = object.contents;
    if (object.kind == BinaryObjects::Ascii)
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
    constexpr qsizetype chunk = 1 << 16;
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
