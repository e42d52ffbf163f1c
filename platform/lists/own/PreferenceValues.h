#pragma once

#include <QVariantMap>

/// What the values of preferences mean, and how they are kept. Any thread.
namespace PreferenceValues {

/// The platform's conversions of what a list can hold: a bool from "YES", "true", "1" or any number
/// but 0; a number from its text (leading blanks and trailing text are passed over, anything else
/// is 0) and within the range; a text from a number. What has no such meaning is false, 0 or empty.
bool toBool(const QVariant &value);
qint64 toInteger(const QVariant &value);
quint64 toUnsigned(const QVariant &value);
QString toText(const QVariant &value);

/// The value as it will come back from the file, so that equal values are seen as equal; invalid
/// for what no list can hold.
QVariant asStored(const QVariant &value);

/// A number and a boolean count as equal for QVariant, but not in a file.
bool areEqual(const QVariant &first, const QVariant &second);

/// Changes are keys with their new values; an invalid one removes its key.
void apply(const QVariantMap &changes, QVariantMap &values);
/// Whether the changes make a difference to the values.
bool changeAny(const QVariantMap &changes, const QVariantMap &values);

} // namespace PreferenceValues
