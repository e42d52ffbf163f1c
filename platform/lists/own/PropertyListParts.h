#pragma once

#include "platform/lists/PropertyListReader.h"

#include <sys/types.h>

#include <cstddef>

/// What the readers of the two formats share. For the .cpp files that make up the list reader.
namespace PropertyListParts {

/// Containers inside containers, in either format. Deeper lists are nobody's data, and whoever
/// walks the result recurses.
inline constexpr std::size_t depthLimit = 512;

/// The text without the blanks around it.
std::string_view trimmed(std::string_view text);

/// Whether the text is what its type promises.
bool isValid(const PropertyListScalar &scalar);

QString invalidScalarText(const PropertyListScalar &scalar);
QString tooDeepText();
/// Of the read that has just failed, by errno.
PropertyListError diskError();

QString tooLongText(quint64 limit);

/// read(2), again when interrupted.
ssize_t readSome(int descriptor, void *buffer, std::size_t size);

/// Feeds an open XML file to the handler, from its start.
PropertyListError readXml(int descriptor, quint64 limit, PropertyListHandler &handler);

/// Feeds an open binary list of `size` bytes to the handler, from its start. A list that unfolds to
/// more than `limit` bytes is refused too (a smaller limit counts as 1 MiB there).
PropertyListError readBinary(int descriptor, quint64 size, quint64 limit,
                             PropertyListHandler &handler);

} // namespace PropertyListParts
