#pragma once

#include "platform/files/FileError.h"

#include <QHash>
#include <QString>

namespace QMINIParser {

/// The values of an INI file by "section-key"; keys above the first section stand under "-key". Of
/// values under the same name the last counts. Nothing is trimmed, and there are no comments.
/// Errors are those of TextFile. Any thread.
FileResult<QHash<QString, QString>> parseINI(const QString &path);

} // namespace QMINIParser
