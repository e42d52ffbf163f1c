#include "platform/lists/own/XmlElements.h"

#include <QDate>
#include <QTime>

#include <algorithm>
#include <charconv>
#include <cstring>
#include <limits>

namespace {

template <typename Number>
bool parseWhole(std::string_view text, Number &number, auto... format)
{
    const char *end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number, format...);
    return error == std::errc() && stop == end;
}

/// Whether the text is "2001-02-03T04:05:06Z" in digits; the year may be shorter, as some write the
/// very old dates that stand for "never".
bool hasDateShape(std::string_view text)
{
    constexpr std::string_view shape = "0000-00-00T00:00:00Z";
    constexpr std::size_t longestYear = 4;
    const std::size_t yearLength = text.find('-');
    if (yearLength < 1 || yearLength > longestYear)
        return false;
    const auto fits = [](char wanted, char found) {
        return wanted == '0' ? found >= '0' && found <= '9' : found == wanted;
    };
    return std::ranges::equal(shape.substr(longestYear - yearLength), text, fits);
}

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::optional<PropertyListScalar> integerFrom(std::string_view text)
{
    text = trimmed(text);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);
    const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
    std::uint64_t magnitude = 0;
    if (!parseWhole(text.substr(hexadecimal ? 2 : 0), magnitude, hexadecimal ? 16 : 10))
        return std::nullopt;
    constexpr auto highest = std::uint64_t(std::numeric_limits<std::int64_t>::max());
    if (negative && magnitude > highest + 1)
        return std::nullopt;
    if (!negative && magnitude > highest)
        return magnitude;
    // Unsigned, since the lowest number has no positive counterpart.
    return static_cast<std::int64_t>(negative ? 0 - magnitude : magnitude);
}

std::optional<PropertyListScalar> realFrom(std::string_view text)
{
    text = trimmed(text);
    if (text.starts_with('+'))
        text.remove_prefix(1);
    double number = 0;
    return parseWhole(text, number) ? std::optional<PropertyListScalar>(number) : std::nullopt;
}

std::optional<PropertyListScalar> dateFrom(std::string_view text)
{
    text = trimmed(text);
    if (!hasDateShape(text))
        return std::nullopt;
    const auto part = [text](std::size_t fromEnd, std::size_t length) {
        int number = 0;
        parseWhole(text.substr(text.size() - fromEnd, length), number);
        return number;
    };
    const std::size_t yearLength = text.find('-');
    const QDate date(part(text.size(), yearLength), part(15, 2), part(12, 2));
    const QTime time(part(9, 2), part(6, 2), part(3, 2));
    if (!date.isValid() || !time.isValid())
        return std::nullopt;
    return QDateTime(date, time, Qt::UTC);
}

std::optional<PropertyListScalar> dataFrom(std::string_view text)
{
    constexpr std::string_view allowed =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/= \t\r\n";
    if (text.find_first_not_of(allowed) != std::string_view::npos)
        return std::nullopt;
    return QByteArray::fromBase64(
        QByteArray::fromRawData(text.data(), static_cast<qsizetype>(text.size())));
}

} // namespace

namespace XmlElements {

/// Told apart by the first letter: a library has millions of elements.
Element elementNamed(const char *name)
{
    const auto ifNamed = [name](const char *rest, Element element) {
        return std::strcmp(name + 1, rest) == 0 ? element : Element::Unknown;
    };
    switch (name[0]) {
    case 'k':
        return ifNamed("ey", Element::Key);
    case 's':
        return ifNamed("tring", Element::String);
    case 'i':
        return ifNamed("nteger", Element::Integer);
    case 'r':
        return ifNamed("eal", Element::Real);
    case 't':
        return ifNamed("rue", Element::True);
    case 'f':
        return ifNamed("alse", Element::False);
    case 'a':
        return ifNamed("rray", Element::Array);
    case 'p':
        return ifNamed("list", Element::Plist);
    case 'd':
        if (name[1] == 'i')
            return ifNamed("ict", Element::Dictionary);
        return std::strcmp(name, "date") == 0 ? Element::Date : ifNamed("ata", Element::Data);
    default:
        return Element::Unknown;
    }
}

bool isScalar(Element element)
{
    switch (element) {
    case Element::String:
    case Element::Integer:
    case Element::Real:
    case Element::Date:
    case Element::Data:
    case Element::True:
    case Element::False:
        return true;
    case Element::Plist:
    case Element::Dictionary:
    case Element::Array:
    case Element::Key:
    case Element::Unknown:
        break;
    }
    return false;
}

std::optional<PropertyListScalar> scalarFrom(Element element, std::string_view text)
{
    switch (element) {
    case Element::Integer:
        return integerFrom(text);
    case Element::Real:
        return realFrom(text);
    case Element::Date:
        return dateFrom(text);
    case Element::Data:
        return dataFrom(text);
    case Element::True:
    case Element::False:
        return trimmed(text).empty() ? std::optional<PropertyListScalar>(element == Element::True)
                                     : std::nullopt;
    default:
        return text;
    }
}

QString invalidScalarText(Element element, std::string_view text)
{
    if (element == Element::True || element == Element::False)
        return QStringLiteral("text inside a boolean");
    constexpr std::size_t shown = 40;
    const char *kind = element == Element::Integer ? "integer"
                       : element == Element::Real  ? "real"
                       : element == Element::Date  ? "date"
                                                   : "base64 data";
    return QStringLiteral("\"%1\" is no %2")
        .arg(QString::fromUtf8(text.substr(0, shown)), QLatin1String(kind));
}

} // namespace XmlElements
