#include "util/ByteCount.h"

#include "platform/core/Localized.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace {

struct SizeUnit
{
    double limit; // largest byte count that is told in this unit
    double bytes;
    int decimals;
    const char *format; // as the translations have it; the number takes the place of its "%0.nf"
};

constexpr double kilobyte = 1024.0;
constexpr double megabyte = kilobyte * kilobyte;
constexpr double gigabyte = megabyte * kilobyte;
constexpr double terabyte = gigabyte * kilobyte;

const SizeUnit &unitFor(double byteCount)
{
    static constexpr std::array<SizeUnit, 5> units = {{
        {kilobyte, 1.0, 0, QT_TRANSLATE_NOOP("", "%0.0f b")},
        {megabyte, kilobyte, 1, QT_TRANSLATE_NOOP("", "%0.1f KB")},
        {gigabyte, megabyte, 1, QT_TRANSLATE_NOOP("", "%0.1f MB")},
        {terabyte, gigabyte, 1, QT_TRANSLATE_NOOP("", "%0.1f GB")},
        {0.0, terabyte, 1, QT_TRANSLATE_NOOP("", "%0.1f TB")},
    }};
    const auto fits = [byteCount](const SizeUnit &unit) {
        return byteCount <= unit.limit;
    };
    return *std::find_if(units.begin(), units.end() - 1, fits);
}

/// As printf in the C locale; ties go to the even digit, which Qt's own conversion doesn't do.
QString fixedPoint(double value, int decimals)
{
    std::array<char, 32> digits; // at most 2^64 with one decimal
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                   std::chars_format::fixed, decimals);
    return QString::fromLatin1(digits.data(), end.ptr - digits.data());
}

} // namespace

QString FileManagerTools::sizeDescriptionForByteCount(std::optional<quint64> byteCount)
{
    if (byteCount.value_or(0) == 0)
        return localized("--");
    const auto value = static_cast<double>(*byteCount);
    const SizeUnit &unit = unitFor(value);
    const QString placeholder =
        unit.decimals == 0 ? QStringLiteral("%0.0f") : QStringLiteral("%0.1f");
    return localized(unit.format)
        .replace(placeholder, fixedPoint(value / unit.bytes, unit.decimals));
}
