#include "frontend/Rows.h"

#include <algorithm>

QString Rows::text(const QVariantMap &row, QStringView key)
{
    return row.value(key.toString()).toString();
}

QString Rows::line(const QString &text)
{
    constexpr qsizetype longest = 300;
    const auto turns = [](QChar c) {
        return (c >= u'\u202A' && c <= u'\u202E') || (c >= u'\u2066' && c <= u'\u2069');
    };
    QString line = text.first(std::min(text.size(), 2 * longest)).removeIf(turns);
    for (QChar &c : line) {
        if (c.category() == QChar::Other_Control || c == QChar::LineSeparator ||
            c == QChar::ParagraphSeparator)
            c = u' ';
    }
    line = line.trimmed();
    if (line.size() > longest)
        line = line.first(longest).trimmed() + u'…';
    return line;
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
