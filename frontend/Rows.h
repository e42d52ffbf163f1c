#pragma once

#include <QString>
#include <QVariantList>
#include <QVariantMap>

/// Rows as the helper's lists give them.
namespace Rows {

/// Empty where the row lacks the key.
QString text(const QVariantMap &row, QStringView key);

/// The one row that the user means: by its identifier, or by a name that no other row has. Empty,
/// with an error told, for none and for several; `what` is what the rows are ("movie"), `list` the
/// kind of list that shows them.
QVariantMap named(const QVariantList &rows, const QString &id, const QString &what,
                  const QString &list);

} // namespace Rows
