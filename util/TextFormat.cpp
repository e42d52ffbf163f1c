#include "util/TextFormat.h"

QString filled(const QString &format, const QStringList &values)
{
    QString text = format;
    qsizetype from = 0;
    for (const QString &value : values) {
        const auto place = text.indexOf(u"%@", from);
        if (place < 0)
            break;
        text.replace(place, 2, value);
        from = place + value.size();
    }
    return text;
}
