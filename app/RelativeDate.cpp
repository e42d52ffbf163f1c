#include "app/RelativeDate.h"

#include "platform/core/Localized.h"

#include <QLocale>

namespace {

QString dayName(qint64 daysFromToday)
{
    switch (daysFromToday) {
    case 0:
        return localized("today");
    case 1:
        return localized("tomorrow");
    case -1:
        return localized("yesterday");
    default:
        return {};
    }
}

QString capitalized(QString text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (i == 0 || text[i - 1].isSpace())
            text[i] = text[i].toUpper();
    }
    return text;
}

} // namespace

QString relativeDate(const std::optional<QDateTime> &date, const QDateTime &now)
{
    if (!date || !date->isValid())
        return localized("Never");
    const QDateTime local = date->toLocalTime();
    const QString day = capitalized(dayName(now.toLocalTime().date().daysTo(local.date())));
    // Month names and day halves are English wherever dates are formatted.
    return day.isEmpty() ? QLocale::c().toString(local, QStringLiteral("dd-MMM-yy hh:mm AP"))
                         : day + QLocale::c().toString(local, QStringLiteral(" hh:mm AP"));
}
