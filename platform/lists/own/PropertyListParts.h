#pragma once

#include "platform/lists/PropertyListReader.h"
#include "platform/lists/own/ListFile.h"

#include <cstddef>

/// What the readers of the two formats share. For the .cpp files that make up the list reader.
namespace PropertyListParts {

/// Containers inside containers, in either format. Deeper lists are nobody's data, and whoever
/// walks the result recurses.
inline constexpr std::size_t depthLimit = 512;

QString tooDeepText();

/// Feeds a freshly opened XML file to the handler.
FileResult<> readXml(ListFile &file, quint64 limit, PropertyListHandler &handler);

/// Feeds a freshly opened binary list to the handler. A list that unfolds to more than `limit`
/// bytes is refused too (a smaller limit counts as 1 MiB there).
FileResult<> readBinary(ListFile &file, quint64 limit, PropertyListHandler &handler);

} // namespace PropertyListParts
