#pragma once

#include <QList>
#include <QString>
#include <QVariantMap>

/// Rows as the helper's lists give them.
namespace Rows {

/// Empty where the row lacks the key.
QString text(const QVariantMap &row, QStringView key);

/// The rows that the user may mean by `id`: the one whose identifier it is, else every row of that
/// name.
QList<QVariantMap> meant(const QVariantList &rows, const QString &id);

} // namespace Rows
