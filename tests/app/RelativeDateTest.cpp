#include "app/RelativeDate.h"

#include <gtest/gtest.h>

TEST(RelativeDate, NamesTheDaysAroundToday)
{
    const QDateTime now(QDate(2026, 3, 29), QTime(0, 30));
    struct Case
    {
        std::optional<QDateTime> date;
        const char *text;
    };
    const Case cases[] = {
        {std::nullopt, "Never"},
        {QDateTime(), "Never"},
        {QDateTime(QDate(2026, 3, 29), QTime(21, 5)), "Today 09:05 PM"},
        {QDateTime(QDate(2026, 3, 29), QTime(0, 0)), "Today 12:00 AM"},
        {QDateTime(QDate(2026, 3, 28), QTime(23, 59)), "Yesterday 11:59 PM"},
        {QDateTime(QDate(2026, 3, 28), QTime(0, 0)), "Yesterday 12:00 AM"},
        {QDateTime(QDate(2026, 3, 30), QTime(12, 0)), "Tomorrow 12:00 PM"},
        {QDateTime(QDate(2026, 3, 27), QTime(23, 59)), "27-Mar-26 11:59 PM"},
        {QDateTime(QDate(2006, 3, 3), QTime(16, 15)), "03-Mar-06 04:15 PM"},
        {QDateTime(QDate(2026, 3, 31), QTime(8, 1)), "31-Mar-26 08:01 AM"},
    };
    for (const Case &c : cases)
        EXPECT_EQ(relativeDate(c.date, now), QString::fromLatin1(c.text));
}
