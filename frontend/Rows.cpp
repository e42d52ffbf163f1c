#include "frontend/Rows.h"

#include "frontend/Output.h"

QString Rows::text(const QVariantMap &row, QStringView key)
{
    return row.value(key.toString()).toString();
}

QVariantMap Rows::named(const QVariantList &rows, const QString &id, const QString &what,
                        const QString &list)
{
    QList<QVariantMap> byName;
    for (const QVariant &each : rows) {
        const QVariantMap row = each.toMap();
        if (text(row, u"identifier") == id || text(row, u"identifier2") == id)
            return row;
        if (text(row, u"name") == id)
            byName.append(row);
    }
    if (byName.size() == 1)
        return byName.first();
    Output::error(byName.isEmpty()
                      ? QStringLiteral("there is no %1 %2").arg(what, Output::printable(id))
                      : QStringLiteral("several %1s are called %2; name one by its identifier, "
                                       "see list %3 --json")
                            .arg(what, Output::printable(id), list));
    return {};
}
