#include "platform/lists/own/PropertyListParts.h"

#include <QDate>
#include <QTime>

#include <algorithm>
#include <charconv>
#include <limits>

using PropertyListParts::trimmed;

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

} // namespace PropertyListParts
