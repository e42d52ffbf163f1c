#include "platform/lists/own/PropertyListParts.h"

#include <QDate>
#include <QTime>

#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>

using PropertyListParts::trimmed;

namespace {

template <typename Number>
bool parseWhole(std::string_view text, Number &number, auto... format)
{
    const char *end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number, format...);
    return error == std::errc() && stop == end;
}

struct Integer
{
    bool negative = false;
    std::uint64_t magnitude = 0;
};

std::optional<Integer> parseInteger(std::string_view text)
{
    Integer integer;
    text = trimmed(text);
    if (text.starts_with('-') || text.starts_with('+')) {
        integer.negative = text.front() == '-';
        text.remove_prefix(1);
    }
    const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
    if (!parseWhole(text.substr(hexadecimal ? 2 : 0), integer.magnitude, hexadecimal ? 16 : 10))
        return std::nullopt;
    constexpr std::uint64_t lowest = 1ULL << 63;
    if (integer.negative && integer.magnitude > lowest)
        return std::nullopt;
    return integer;
}

std::optional<double> parseReal(std::string_view text)
{
    text = trimmed(text);
    if (text.starts_with('+'))
        text.remove_prefix(1);
    double number = 0;
    return parseWhole(text, number) ? std::optional(number) : std::nullopt;
}

/// "2001-02-03T04:05:06Z" with values that a calendar and a clock have; a year may be shorter, as
/// some write the very old dates that stand for "never".
bool isDate(std::string_view text)
{
    text = trimmed(text);
    const std::size_t yearLength = text.find('-');
    constexpr std::string_view shape = "0000-00-00T00:00:00Z";
    constexpr std::size_t longestYear = 4;
    if (yearLength < 1 || yearLength > longestYear)
        return false;
    const std::string_view expected = shape.substr(longestYear - yearLength);
    const auto fits = [](char wanted, char found) {
        return wanted == '0' ? found >= '0' && found <= '9' : found == wanted;
    };
    if (!std::ranges::equal(expected, text, fits))
        return false;
    const auto part = [text](std::size_t from, std::size_t length) {
        int number = 0;
        parseWhole(text.substr(from, length), number);
        return number;
    };
    return QDate::isValid(part(0, yearLength), part(yearLength + 1, 2), part(yearLength + 4, 2)) &&
           QTime::isValid(part(yearLength + 7, 2), part(yearLength + 10, 2),
                          part(yearLength + 13, 2));
}

bool isBase64(std::string_view text)
{
    constexpr std::string_view allowed =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/= \t\r\n";
    return text.find_first_not_of(allowed) == std::string_view::npos;
}

} // namespace

namespace PropertyListParts {

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool isValid(const PropertyListScalar &scalar)
{
    switch (scalar.type) {
    case PropertyListType::Integer:
        return parseInteger(scalar.text).has_value();
    case PropertyListType::Real:
        return parseReal(scalar.text).has_value();
    case PropertyListType::Date:
        return isDate(scalar.text);
    case PropertyListType::Data:
        return isBase64(scalar.text);
    case PropertyListType::String:
    case PropertyListType::Boolean:
        break;
    }
    return true;
}

QString invalidScalarText(const PropertyListScalar &scalar)
{
    constexpr std::size_t shown = 40;
    const std::string_view text = scalar.text.substr(0, shown);
    const char *kind = scalar.type == PropertyListType::Integer ? "integer"
                       : scalar.type == PropertyListType::Real  ? "real"
                       : scalar.type == PropertyListType::Date  ? "date"
                                                                : "base64 data";
    return QStringLiteral("\"%1\" is no %2")
        .arg(QString::fromUtf8(text.data(), qsizetype(text.size())), QLatin1String(kind));
}

} // namespace PropertyListParts

std::int64_t PropertyListScalar::toInteger(bool *ok) const
{
    const std::optional<Integer> integer =
        type == PropertyListType::Integer ? parseInteger(text) : std::nullopt;
    constexpr auto highest = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    const bool fits = integer && (integer->negative || integer->magnitude <= highest);
    if (ok)
        *ok = fits;
    if (!fits)
        return 0;
    // Unsigned, since the lowest number has no positive counterpart.
    return static_cast<std::int64_t>(integer->negative ? 0 - integer->magnitude
                                                       : integer->magnitude);
}

std::uint64_t PropertyListScalar::toUnsigned(bool *ok) const
{
    const std::optional<Integer> integer =
        type == PropertyListType::Integer ? parseInteger(text) : std::nullopt;
    const bool fits = integer && (!integer->negative || integer->magnitude == 0);
    if (ok)
        *ok = fits;
    return fits ? integer->magnitude : 0;
}

double PropertyListScalar::toReal() const
{
    return type == PropertyListType::Real ? parseReal(text).value_or(0) : 0;
}
