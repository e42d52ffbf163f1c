#include "frontend/Rows.h"

QString Rows::text(const QVariantMap &row, QStringView key)
{
    return row.value(key.toString()).toString();
}

QList<QVariantMap> Rows::meant(const QVariantList &rows, const QString &id)
{
    QList<QVariantMap> byName;
    for (const QVariant &each : rows) {
        const QVariantMap row = each.toMap();
        if (text(row, u"identifier") == id || text(row, u"identifier2") == id)
            return {row};
        if (text(row, u"name") == id)
            byName.append(row);
    }
    return byName;
}
