#pragma once

#include <QString>

#include <optional>

namespace FileManagerTools {

/// A byte count for people, as "1.5 KB" (localized); "--" for 0 and for nothing.
QString sizeDescriptionForByteCount(std::optional<quint64> byteCount);

} // namespace FileManagerTools
