#include "cli/ListCommands.h"

#include <gmock/gmock.h>

namespace {

QVariantMap row(QStringView identifier, QStringView name)
{
    return {{QStringLiteral("identifier"), identifier.toString()},
            {QStringLiteral("name"), name.toString()}};
}

TEST(ListCommandsTest, NamesChangeTheSelection)
{
    const QVariantList rows = {row(u"1", u"Road"), row(u"2", u"Road"), row(u"3", u"Sea"),
                               row(u"Sea", u"Hills")};
    const struct
    {
        QStringList current;
        SelectMode mode;
        QStringList names;
        QStringList selected;
        QStringList unknown;
    } cases[] = {
        {{u"1"_qs}, SelectMode::Replace, {u"3"_qs}, {u"3"_qs}, {}},
        {{}, SelectMode::Replace, {u"Road"_qs}, {u"1"_qs, u"2"_qs}, {}},
        // An identifier goes before another row's name.
        {{}, SelectMode::Replace, {u"Sea"_qs}, {u"Sea"_qs}, {}},
        {{u"3"_qs}, SelectMode::Add, {u"2"_qs, u"2"_qs}, {u"2"_qs, u"3"_qs}, {}},
        {{u"2"_qs, u"3"_qs}, SelectMode::Remove, {u"Road"_qs}, {u"3"_qs}, {}},
        {{u"3"_qs}, SelectMode::All, {}, {u"1"_qs, u"2"_qs, u"3"_qs, u"Sea"_qs}, {}},
        {{u"3"_qs}, SelectMode::None, {}, {}, {}},
        {{}, SelectMode::Add, {u"1"_qs, u"x"_qs, u"sea"_qs}, {u"1"_qs}, {u"x"_qs, u"sea"_qs}},
    };
    for (const auto &each : cases) {
        const Selection result = changedSelection(rows, each.current, each.mode, each.names);
        EXPECT_EQ(result.identifiers, each.selected) << qPrintable(each.names.join(u' '));
        EXPECT_EQ(result.unknown, each.unknown) << qPrintable(each.names.join(u' '));
    }
}

} // namespace
