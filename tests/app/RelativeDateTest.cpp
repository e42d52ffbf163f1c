#include "app/RelativeDate.h"

#include <QCoreApplication>
#include <QTranslator>

#include <gtest/gtest.h>

#include <ctime>

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

TEST(RelativeDate, CountsDaysAcrossAChangeToSummerTime)
{
    const QByteArray oldZone = qgetenv("TZ");
    qputenv("TZ", "Europe/Berlin"); // on 2026-03-29 two o'clock is three o'clock
    tzset();
    const QDateTime now(QDate(2026, 3, 29), QTime(23, 30));
    const auto utc = [](int day, int hour, int minute) {
        return QDateTime(QDate(2026, 3, day), QTime(hour, minute), Qt::UTC);
    };
    EXPECT_EQ(relativeDate(utc(28, 22, 59), now), QStringLiteral("Yesterday 11:59 PM"));
    EXPECT_EQ(relativeDate(utc(28, 23, 0), now), QStringLiteral("Today 12:00 AM"));
    EXPECT_EQ(relativeDate(utc(29, 1, 0), now), QStringLiteral("Today 03:00 AM"));
    EXPECT_EQ(relativeDate(utc(29, 21, 59), now), QStringLiteral("Today 11:59 PM"));
    EXPECT_EQ(relativeDate(utc(29, 22, 0), now), QStringLiteral("Tomorrow 12:00 AM"));
    EXPECT_EQ(relativeDate(utc(30, 22, 0), now), QStringLiteral("31-Mar-26 12:00 AM"));
    qputenv("TZ", oldZone);
    tzset();
}

TEST(RelativeDate, CapitalizesTheLanguagesWord)
{
    class Words : public QTranslator
    {
        QString translate(const char *, const char *text, const char *, int) const override
        {
            return qstrcmp(text, "yesterday") == 0 ? QStringLiteral("der tag davor") : QString();
        }
        bool isEmpty() const override { return false; }
    };
    Words words;
    QCoreApplication::installTranslator(&words);
    EXPECT_EQ(relativeDate(QDateTime(QDate(2026, 3, 28), QTime(9, 5)),
                           QDateTime(QDate(2026, 3, 29), QTime(9, 0))),
              QStringLiteral("Der Tag Davor 09:05 AM"));
    QCoreApplication::removeTranslator(&words);
}
