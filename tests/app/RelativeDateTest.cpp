#include "app/RelativeDate.h"

#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <ctime>

TEST(RelativeDate, NamesTheDaysAroundToday)
{
    const QByteArray oldZone = qgetenv("TZ");
    qputenv("TZ", "Europe/Berlin"); // on 2026-03-29 two o'clock is three o'clock
    tzset();
    const std::pair<const char *, const char *> cases[] = {
        {"", "Never"},
        {"2026-03-28T22:59:59Z", "Yesterday 11:59 PM"},
        {"2026-03-27T23:00:00Z", "Yesterday 12:00 AM"},
        {"2026-03-27T22:59:59Z", "27-Mar-26 11:59 PM"},
        {"2026-03-28T23:00:00Z", "Today 12:00 AM"},
        {"2026-03-29T01:00:00Z", "Today 03:00 AM"},
        {"2026-03-29T21:59:59Z", "Today 11:59 PM"},
        {"2026-03-29T22:00:00Z", "Tomorrow 12:00 AM"},
        {"2026-03-30T10:00:00Z", "Tomorrow 12:00 PM"},
        {"2026-03-30T22:00:00Z", "31-Mar-26 12:00 AM"},
        {"2006-03-03T15:15:00Z", "03-Mar-06 04:15 PM"},
    };
    const auto shown = [](const char *date, const QTime &now) {
        return relativeDate(QDateTime::fromString(QLatin1String(date), Qt::ISODate),
                            QDateTime(QDate(2026, 3, 29), now))
            .toStdString();
    };
    for (const auto &[date, text] : cases) {
        EXPECT_EQ(shown(date, QTime(0, 30)), text);
        EXPECT_EQ(shown(date, QTime(23, 30)), text);
    }
    EXPECT_EQ(relativeDate(std::nullopt, QDateTime::currentDateTime()), u"Never"_s);
    qputenv("TZ", oldZone);
    tzset();
}
