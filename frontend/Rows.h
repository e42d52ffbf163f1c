#pragma once

#include <QList>
#include <QString>
#include <QVariantMap>

/// Rows as the helper's lists give them.
namespace Rows {

/// Empty where the row lacks the key.
QString text(const QVariantMap &row, QStringView key);

/// A text of the helper's as one line: control characters are blanks, what would turn the direction
/// of the text around it is gone, and at most 300 characters are left.
QString line(const QString &text);

/// The rows that the user may mean by `id`: the one whose identifier it is, else every row of that
/// name.
QList<QVariantMap> meant(const QVariantList &rows, const QString &id);

} // namespace Rows
