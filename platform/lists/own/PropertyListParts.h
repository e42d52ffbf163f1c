#pragma once

#include "platform/lists/PropertyListReader.h"
#include "platform/lists/own/ListFile.h"

#include <cstddef>
#include <optional>

/// What the readers of the two formats share. For the .cpp files that make up the list reader.
namespace PropertyListParts {

/// Containers inside containers, in either format. Deeper lists are nobody's data, and whoever
/// walks the result recurses.
inline constexpr std::size_t depthLimit = 512;

QString tooDeepText();

/// The text without the blanks around it.
std::string_view trimmed(std::string_view text);

/// The values that the texts of an XML list stand for, with blanks around them allowed; nothing
/// where the text is none. Integers of both 64-bit ranges, also hexadecimal ones; reals with "nan"
/// and "infinity"; dates as "2001-02-03T04:05:06Z", of the years 1 to 9999; base64.
std::optional<PropertyListScalar> integerFrom(std::string_view text);
std::optional<PropertyListScalar> realFrom(std::string_view text);
std::optional<PropertyListScalar> dateFrom(std::string_view text);
std::optional<PropertyListScalar> dataFrom(std::string_view text);

/// Feeds a freshly opened XML file to the handler.
FileResult<> readXml(ListFile &file, quint64 limit, PropertyListHandler &handler);

/// Feeds a freshly opened binary list to the handler. A list that unfolds to more than `limit`
/// bytes is refused too (a smaller limit counts as 1 MiB there).
FileResult<> readBinary(ListFile &file, quint64 limit, PropertyListHandler &handler);

} // namespace PropertyListParts
