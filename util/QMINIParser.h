#pragma once

#include <QHash>
#include <QString>

namespace QMINIParser {

/// The values of an INI file by "section-key"; keys above the first section stand under "-key". Of
/// values under the same name the last counts. Nothing is trimmed, and there are no comments. Empty
/// where the file can't be read. Any thread.
QHash<QString, QString> parseINI(const QString &path);

} // namespace QMINIParser
