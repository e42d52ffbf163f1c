#pragma once

#include <QString>

namespace StringTools {

/// The text with its entity references replaced: the names of HTML's Latin-1 set, "quot", "amp",
/// "apos", "lt", "gt" and "mdash", and numbers, decimal and hexadecimal. "nbsp" and "#160" give a
/// plain blank, "shy" and "#173" a hyphen in front of the soft one. What names none of these, or no
/// character that a document may hold, stays as it stands.
QString stringByParsingEntities(const QString &text);

} // namespace StringTools
