#include "platform/lists/own/PropertyListParts.h"

#include "platform/core/own/Posix.h"

#include <QByteArray>

#include <plist/plist.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory>
#include <optional>
#include <unordered_map>

using namespace PropertyListParts;

namespace {

/// Looks a binary list over before libplist unfolds it. The format lets an object be referred to
/// many times, by itself included, and libplist copies an object at each reference and recurses:
/// without this check a file of a few hundred bytes could take all memory or the stack.
class BinaryShape
{
public:
    /// `budget`: bytes that the unfolded list may weigh.
    BinaryShape(const QByteArray &bytes, quint64 budget);

    /// Empty when the list can be unfolded safely.
    QString problem();

private:
    static constexpr quint64 trailerSize = 32;
    static constexpr quint64 nodeWeight = 32; // of every value, besides the bytes that it holds

    struct Object
    {
        quint64 position; // of the contents
        quint64 count;    // of references in a container, else of bytes
        bool isContainer;
        quint64 keys = 0;      // of a dictionary: the references in front
        quint64 unitWidth = 0; // of a text: bytes of a unit
    };

    struct Measure
    {
        quint64 weight;
        std::size_t height; // containers from here to the deepest one
    };

    quint64 number(quint64 position, quint64 width) const;
    bool holds(quint64 position, quint64 count, quint64 width) const;
    bool readTrailer();
    std::optional<Object> object(quint64 index) const;
    bool hasNul(quint64 index) const;
    std::optional<Measure> measure(quint64 index, std::size_t depth);
    std::optional<Measure> measureContents(const Object &container, std::size_t depth);
    std::nullopt_t fail(const QString &text);

    const unsigned char *const m_bytes;
    const quint64 m_size;
    const quint64 m_budget;
    quint64 m_offsetWidth = 0;
    quint64 m_referenceWidth = 0;
    quint64 m_objects = 0;
    quint64 m_root = 0;
    quint64 m_offsets = 0;                           // position of the table of offsets
    std::unordered_map<quint64, Measure> m_measured; // containers, by index
    QString m_problem;
};

BinaryShape::BinaryShape(const QByteArray &bytes, quint64 budget)
    : m_bytes(reinterpret_cast<const unsigned char *>(bytes.constData()))
    , m_size(static_cast<quint64>(bytes.size()))
    , m_budget(budget)
{
}

QString BinaryShape::problem()
{
    if (!readTrailer())
        return QStringLiteral("binary list: damaged trailer");
    measure(m_root, 1);
    return m_problem;
}

std::nullopt_t BinaryShape::fail(const QString &text)
{
    m_problem = QStringLiteral("binary list: ") + text;
    return std::nullopt;
}

quint64 BinaryShape::number(quint64 position, quint64 width) const
{
    quint64 value = 0;
    for (quint64 i = 0; i < width; ++i)
        value = value << 8 | m_bytes[position + i];
    return value;
}

bool BinaryShape::holds(quint64 position, quint64 count, quint64 width) const
{
    return position <= m_size && count <= (m_size - position) / width;
}

bool BinaryShape::readTrailer()
{
    if (m_size < trailerSize)
        return false;
    const quint64 trailer = m_size - trailerSize;
    m_offsetWidth = m_bytes[trailer + 6];
    m_referenceWidth = m_bytes[trailer + 7];
    m_objects = number(trailer + 8, 8);
    m_root = number(trailer + 16, 8);
    m_offsets = number(trailer + 24, 8);
    const auto isWidth = [](quint64 width) {
        return width >= 1 && width <= 8;
    };
    return isWidth(m_offsetWidth) && isWidth(m_referenceWidth) &&
           holds(m_offsets, m_objects, m_offsetWidth);
}

std::optional<BinaryShape::Object> BinaryShape::object(quint64 index) const
{
    if (index >= m_objects)
        return std::nullopt;
    quint64 position = number(m_offsets + index * m_offsetWidth, m_offsetWidth);
    if (!holds(position, 1, 1))
        return std::nullopt;
    const unsigned kind = m_bytes[position] >> 4;
    quint64 count = m_bytes[position] & 0x0FU;
    ++position;
    const bool isText = kind == 0x4 || kind == 0x5 || kind == 0x6;
    const bool isContainer = kind == 0xA || kind == 0xC || kind == 0xD;
    if (!isText && !isContainer)
        return Object{position, 0, false};
    if (count == 0x0F) {
        // The length stands behind as an integer object of 1, 2, 4 or 8 bytes.
        if (!holds(position, 1, 1) || (m_bytes[position] & 0xFCU) != 0x10)
            return std::nullopt;
        const quint64 width = 1ULL << (m_bytes[position] & 0x03U);
        if (!holds(position + 1, 1, width))
            return std::nullopt;
        count = number(position + 1, width);
        position += 1 + width;
    }
    const quint64 parts = kind == 0x6 || kind == 0xD ? 2 : 1;
    if (!holds(position, count, parts * (isContainer ? m_referenceWidth : 1)))
        return std::nullopt;
    return Object{position, count * parts, isContainer, kind == 0xD ? count : 0,
                  kind == 0x5 || kind == 0x6 ? parts : 0};
}

bool BinaryShape::hasNul(quint64 index) const
{
    const std::optional<Object> text = object(index);
    if (!text || text->unitWidth == 0)
        return false;
    for (quint64 i = 0; i < text->count; i += text->unitWidth) {
        if (number(text->position + i, text->unitWidth) == 0)
            return true;
    }
    return false;
}

std::optional<BinaryShape::Measure> BinaryShape::measure(quint64 index, std::size_t depth)
{
    const std::optional<Object> found = object(index);
    if (!found)
        return fail(QStringLiteral("object %1 lies outside the file").arg(index));
    if (!found->isContainer)
        return Measure{nodeWeight + found->count, 0};
    auto known = m_measured.find(index);
    if (known == m_measured.end()) {
        // A container inside itself ends here too: it never gets measured.
        const std::optional<Measure> contents =
            depth > depthLimit ? fail(tooDeepText()) : measureContents(*found, depth);
        if (!contents)
            return std::nullopt;
        known = m_measured.emplace(index, *contents).first;
    }
    if (depth + known->second.height - 1 > depthLimit)
        return fail(tooDeepText());
    return known->second;
}

std::optional<BinaryShape::Measure> BinaryShape::measureContents(const Object &container,
                                                                 std::size_t depth)
{
    Measure total{nodeWeight, 0};
    for (quint64 i = 0; i < container.count; ++i) {
        const quint64 reference =
            number(container.position + i * m_referenceWidth, m_referenceWidth);
        const std::optional<Measure> part = measure(reference, depth + 1);
        if (!part)
            return std::nullopt;
        total.weight += part->weight;
        total.height = std::max(total.height, part->height);
        if (total.weight > m_budget)
            return fail(QStringLiteral("unfolds to more than %1 bytes").arg(m_budget));
        // libplist ends the process over such a key.
        if (i < container.keys && hasNul(reference))
            return fail(QStringLiteral("a key with a NUL inside"));
    }
    ++total.height;
    return total;
}

struct FreeNode
{
    void operator()(void *node) const { plist_free(node); }
};

struct FreeMemory
{
    void operator()(char *memory) const { std::free(memory); }
};

/// Tells a handler of an unfolded binary list what it would have heard of the same list in XML.
class BinaryWalk
{
public:
    explicit BinaryWalk(PropertyListHandler &handler)
        : m_handler(handler)
    {
    }

    /// Empty when all of it was told.
    QString problem() const { return m_problem; }

    void value(plist_t node);

private:
    void dictionary(plist_t node);
    void array(plist_t node);
    void uid(plist_t node);
    void text(plist_t node);
    void scalar(PropertyListType type, std::string_view text);
    void printed(PropertyListType type, plist_t node);

    PropertyListHandler &m_handler;
    QString m_problem;
};

void BinaryWalk::value(plist_t node)
{
    switch (plist_get_node_type(node)) {
    case PLIST_DICT:
        return dictionary(node);
    case PLIST_ARRAY:
        return array(node);
    case PLIST_STRING:
        return text(node);
    case PLIST_BOOLEAN:
        return scalar(PropertyListType::Boolean, plist_bool_val_is_true(node) ? "true" : "false");
    case PLIST_UINT:
        return printed(PropertyListType::Integer, node);
    case PLIST_REAL:
        return printed(PropertyListType::Real, node);
    case PLIST_DATE:
        return printed(PropertyListType::Date, node);
    case PLIST_DATA:
        return printed(PropertyListType::Data, node);
    case PLIST_UID:
        return uid(node);
    case PLIST_KEY:
    case PLIST_NONE:
        break;
    }
    m_problem = QStringLiteral("binary list: a value of an unknown kind");
}

void BinaryWalk::dictionary(plist_t node)
{
    m_handler.beginDictionary();
    plist_dict_iter position = nullptr;
    plist_dict_new_iter(node, &position);
    const std::unique_ptr<char, FreeMemory> owner(static_cast<char *>(position));
    while (m_problem.isEmpty()) {
        char *key = nullptr;
        plist_t item = nullptr;
        plist_dict_next_item(node, position, &key, &item);
        if (!item)
            break;
        const std::unique_ptr<char, FreeMemory> name(key);
        if (m_handler.key(key ? std::string_view(key) : std::string_view()))
            value(item);
    }
    if (m_problem.isEmpty()) // else it would end behind a key
        m_handler.endDictionary();
}

void BinaryWalk::array(plist_t node)
{
    m_handler.beginArray();
    plist_array_iter position = nullptr;
    plist_array_new_iter(node, &position);
    const std::unique_ptr<char, FreeMemory> owner(static_cast<char *>(position));
    while (m_problem.isEmpty()) {
        plist_t item = nullptr;
        plist_array_next_item(node, position, &item);
        if (!item)
            break;
        value(item);
    }
    if (m_problem.isEmpty())
        m_handler.endArray();
}

/// XML has no such type; there it is this dictionary.
void BinaryWalk::uid(plist_t node)
{
    m_handler.beginDictionary();
    if (m_handler.key("CF$UID"))
        printed(PropertyListType::Integer, node);
    m_handler.endDictionary();
}

void BinaryWalk::text(plist_t node)
{
    uint64_t length = 0;
    const char *bytes = plist_get_string_ptr(node, &length);
    scalar(PropertyListType::String, bytes ? std::string_view(bytes, length) : std::string_view());
}

void BinaryWalk::scalar(PropertyListType type, std::string_view text)
{
    const PropertyListScalar value{type, text};
    if (isValid(value))
        m_handler.scalar(value);
    else
        m_problem = QStringLiteral("binary list: ") + invalidScalarText(value);
}

/// libplist's calls give an integer without its sign and cut a date to 32 bits of seconds; its XML
/// has both right.
void BinaryWalk::printed(PropertyListType type, plist_t node)
{
    char *xml = nullptr;
    uint32_t length = 0;
    plist_to_xml(node, &xml, &length);
    const std::unique_ptr<char, FreeMemory> owner(xml);
    const std::string_view document(xml ? xml : "", xml ? length : 0);
    const char *opening = type == PropertyListType::Integer ? "<integer>"
                          : type == PropertyListType::Real  ? "<real>"
                          : type == PropertyListType::Date  ? "<date>"
                                                            : "<data>";
    const std::size_t tagStart = document.find(opening);
    if (tagStart == std::string_view::npos)
        return scalar(type, {});
    const std::size_t start = tagStart + std::strlen(opening);
    scalar(type, document.substr(start, document.find("</", start) - start));
}

} // namespace

PropertyListError PropertyListParts::readBinary(int descriptor, quint64 size, quint64 limit,
                                                PropertyListHandler &handler)
{
    if (size > std::numeric_limits<uint32_t>::max())
        return PropertyListError{tooLongText(std::numeric_limits<uint32_t>::max())};
    QByteArray bytes(static_cast<qsizetype>(size), Qt::Uninitialized);
    qsizetype filled = 0;
    while (filled < bytes.size()) {
        const ssize_t count = readSome(descriptor, bytes.data() + filled,
                                       static_cast<std::size_t>(bytes.size() - filled));
        if (count < 0)
            return diskError();
        if (count == 0)
            bytes.truncate(filled);
        filled += count;
    }
    constexpr quint64 smallestBudget = 1 << 20; // a caller's limit for text may be tiny
    if (const QString problem = BinaryShape(bytes, std::max(limit, smallestBudget)).problem();
        !problem.isEmpty())
        return PropertyListError{problem};
    plist_t root = nullptr;
    plist_from_bin(bytes.constData(), static_cast<uint32_t>(bytes.size()), &root);
    const std::unique_ptr<void, FreeNode> owner(root);
    if (!root)
        return PropertyListError{QStringLiteral("binary list: damaged")};
    BinaryWalk walk(handler);
    walk.value(root);
    return PropertyListError{walk.problem()};
}
