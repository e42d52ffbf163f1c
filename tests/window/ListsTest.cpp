#include "frontend/Rows.h"
#include "support/TestSupport.h"
#include "window/Capacity.h"
#include "window/KindTexts.h"
#include "window/ListKeeper.h"
#include "window/PlanTexts.h"
#include "window/RowFilter.h"

#include <QAbstractItemModelTester>
#include <QCoreApplication>
#include <QRandomGenerator>

#include <gtest/gtest.h>

#include <deque>

namespace {

QVariantMap row(const QString &identifier, bool enabled = false)
{
    QVariantMap row{{u"identifier"_s, identifier}, {u"name"_s, identifier}, {u"size"_s, 3}};
    if (enabled)
        row.insert(u"enabled"_s, true);
    return row;
}

QList<ListRow> rowsOf(const QString &letters)
{
    QList<ListRow> rows;
    for (const QChar c : letters)
        rows.append(ListRows::fromMap(row(c.toLower(), c.isUpper())));
    ListRows::arrange(rows);
    return rows;
}

/// As rowsOf() takes it.
std::string shown(const QAbstractItemModel &model)
{
    QString letters;
    for (int i = 0; i < model.rowCount(); ++i) {
        const QModelIndex index = model.index(i, 0);
        const QString text = index.data().toString();
        letters += index.data(Qt::CheckStateRole).toInt() == Qt::Checked ? text.toUpper() : text;
    }
    return letters.toStdString();
}

struct Fixture
{
    RowModel model{{u"Name"_s, u"Detail"_s, u"Date"_s}, true};
    RowFilter filter{&model};
    QAbstractItemModelTester tester{&filter, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST(ListRow, BadTextsAreShownAsOneLineOfText)
{
    const QString longest(10'000, u'x');
    EXPECT_EQ(Rows::line(longest).size(), 301);
    EXPECT_EQ(Rows::line(u" a\nb\u2028c\td\x01 "_s), u"a b c d");
    EXPECT_EQ(Rows::line(u"\u202Egpj.exe\u2066\u202C"_s), u"gpj.exe");
    Fixture list;
    list.model.setRows({ListRows::fromMap({{u"identifier"_s, u"<b>&"_s}, {u"name"_s, longest}}),
                        ListRows::fromMap({{u"name"_s, u"<b>Bold</b>"_s}, {u"order"_s, u"?"_s}})});
    const QModelIndex nameless = list.model.index(1, 0);
    EXPECT_EQ(nameless.data().toString(), u"<b>Bold</b>");
    EXPECT_TRUE(nameless.data(Qt::ToolTipRole).toString().contains(u"&lt;b&gt;"));
    EXPECT_FALSE(nameless.flags() & Qt::ItemIsUserCheckable) << "nothing to select it by";
    list.model.setChecked({0, 1}, true);
    EXPECT_EQ(list.model.checkedIdentifiers(), QStringList{u"<b>&"_s});
    EXPECT_EQ(ListRows::fromMap({}).name, QString());
}

TEST(ListRow, TellsHowFarAMovieIs)
{
    using State = ListRow::State;
    const auto stateOf = [](QVariantMap more) {
        return ListRows::fromMap(more).state;
    };
    EXPECT_EQ(stateOf({{u"ready"_s, true}}), State::Plain);
    EXPECT_EQ(stateOf({{u"ready"_s, false}}), State::Waiting);
    EXPECT_EQ(stateOf({{u"ready"_s, false}, {u"converting"_s, true}}), State::Working);
    EXPECT_EQ(stateOf({{u"ready"_s, false}, {u"converting"_s, false}}), State::Failed);
}

TEST(RowModel, RowsOfOneIdentifierAreSelectedTogether)
{
    Fixture list;
    list.model.setRows(rowsOf(u"abca"_s));
    list.model.setChecked({0}, true);
    EXPECT_EQ(shown(list.model), "AbcA");
    EXPECT_EQ(list.model.checkedIdentifiers(), QStringList{u"a"_s});
}

// Whatever is read after whatever: the model's tester sees each step, and views keep their place.
TEST(RowModel, RowsReadAnewKeepTheirPlace)
{
    Fixture list;
    QRandomGenerator random(20);
    const QString letters = u"abcdefghijABCDEFGHIJ"_s;
    for (int round = 0; round < 300; ++round) {
        QString next;
        for (quint32 count = random.bounded(12U); count > 0; --count)
            next += letters[random.bounded(static_cast<int>(letters.size()))];
        const QPersistentModelIndex place = list.filter.index(list.filter.rowCount() / 2, 0);
        const QString key = place.isValid() ? list.model.at(place.row()).key : QString();
        const QList<ListRow> rows = rowsOf(next);
        list.model.setRows(rows);
        ASSERT_EQ(shown(list.filter), next.toStdString());
        const bool isLeft = std::ranges::count(rows, key, &ListRow::key) > 0;
        ASSERT_EQ(place.isValid(), isLeft && !key.isEmpty()) << round;
        if (place.isValid()) {
            ASSERT_EQ(list.model.at(place.row()).key, key);
        }
    }
}

TEST(RowFilter, WhatIsOutOfSightStaysChecked)
{
    Fixture list;
    list.model.setRows({ListRows::fromMap(row(u"Déjà Vu"_s, true)),
                        ListRows::fromMap(row(u"Road Trip"_s, true)),
                        ListRows::fromMap(row(u"Road Works"_s))});
    list.filter.search(u" ROAD  t"_s);
    EXPECT_EQ(shown(list.filter), "ROAD TRIP");
    EXPECT_EQ(list.filter.hiddenChecked(), 1);
    list.model.setChecked(list.filter.shownRows(), false);
    EXPECT_EQ(list.model.checkedIdentifiers(), QStringList{u"Déjà Vu"_s});
    list.filter.search(u"deja"_s);
    EXPECT_EQ(list.filter.shownRows(), QList<int>{0});
}

TEST(EmptyList, SaysWhyAndWhatToDo)
{
    const auto source = [](const char *title, int value, bool found, bool chosen, int entries) {
        return QVariantMap{{u"kind"_s, u"Music"_s}, {u"title"_s, QLatin1String(title)},
                           {u"place"_s, u"/x"_s},   {u"value"_s, value},
                           {u"found"_s, found},     {u"chosen"_s, chosen},
                           {u"entries"_s, entries}};
    };
    const EmptyList missing = EmptyList::of(
        u"Music"_s, {source("One", 0, false, true, 0), source("Two", 1, true, false, 5)});
    EXPECT_EQ(missing.text, u"Nothing of One was found on this computer. It would lie here: /x");
    ASSERT_EQ(missing.others.size(), 1);
    EXPECT_EQ(missing.others[0].text, u"Take Two (5)");
    EXPECT_EQ(missing.others[0].value, 1);
    const EmptyList broken = EmptyList::of(
        u"Music"_s, {source("One", 0, true, true, -1), source("Two", 1, false, false, 0)});
    EXPECT_EQ(broken.text, u"What One has written can't be read; it may be damaged: /x\n"
                           u"Nothing else was found on this computer.");
    EXPECT_FALSE(EmptyList::of(u"Music"_s, {}).text.isEmpty());
}

TEST(Capacity, TellsWhatIsTooMuchAndDoesNotTrustTheNumbers)
{
    const auto words = [](const QVariantMap &plan) {
        const QVariantMap stick{{u"capacity"_s, 1000}, {u"free"_s, 400}};
        return Capacity::of(stick, plan).inWords();
    };
    const auto plan = [](int needed, QVariant music) {
        const QVariantMap kinds{{u"name"_s, u"Music"_s}, {u"bytes"_s, std::move(music)}};
        return QVariantMap{{u"free"_s, 400},
                           {u"bytesFreed"_s, 100},
                           {u"bytesNeeded"_s, needed},
                           {u"fits"_s, needed <= 500},
                           {u"kinds"_s, QVariantList{kinds, u"no map"_s, QVariantMap()}}};
    };
    EXPECT_EQ(words({}), u"Others 600 b, 400 b free of 1000 b");
    EXPECT_EQ(words(plan(300, 350)), u"Music 350 b, Others 450 b, 200 b free of 1000 b");
    EXPECT_EQ(words(plan(800, 900)), u"Music 900 b, Others 400 b, 300 b too much for 1000 b");
    EXPECT_EQ(words(plan(300, 5000)), u"Music 800 b, 200 b free of 1000 b");
    EXPECT_EQ(words(plan(300, u"?"_s)), u"Others 800 b, 200 b free of 1000 b");
    EXPECT_EQ(PlanTexts::totals({}), u"Nothing to do.");
    EXPECT_FALSE(PlanTexts::groupOf(u"Unknown"_s, {}));
}

/// Answers when it is told to.
struct Helper
{
    QVariantList rows;
    std::deque<HelperCalls::Answered> asked;
    QList<QStringList> selections;
    bool takes = true;

    HelperCalls calls()
    {
        return {[this](const Protocol::Method &, const QVariantList &, QObject *,
                       const HelperCalls::Answered &answered) { asked.push_back(answered); },
                [this](const Protocol::Method &, const QVariantList &arguments) {
                    selections.append(arguments.first().toStringList());
                    for (QVariant &each : rows) {
                        QVariantMap map = each.toMap();
                        if (takes)
                            map.insert(u"enabled"_s, selections.last().contains(
                                                         map.value(u"identifier"_s).toString()));
                        each = map;
                    }
                }};
    }
    void answer()
    {
        ASSERT_FALSE(asked.empty());
        const auto answered = asked.front();
        asked.pop_front();
        answered(rows);
    }
};

struct Kept : Fixture
{
    Helper helper;
    ListKeeper keeper{helper.calls(), Protocol::lists[0], &model};

    void answer()
    {
        helper.answer();
        for (int turn = 0; turn < 20; ++turn)
            QCoreApplication::processEvents();
    }
};

TEST(ListKeeper, WhatTheUserChangesIsNotUndoneByAnOlderAnswer)
{
    Kept list;
    list.helper.rows = {row(u"a"_s), row(u"b"_s)};
    list.keeper.reload();
    list.answer();
    list.keeper.reload();
    list.model.setChecked({1}, true);
    list.answer(); // of before the change
    EXPECT_EQ(shown(list.model), "aB");
    ASSERT_TRUE(waitFor([&] { return !list.helper.selections.isEmpty(); }));
    EXPECT_EQ(list.helper.selections, QList<QStringList>{{u"b"_s}});
    list.answer();
    EXPECT_EQ(shown(list.model), "aB");
    EXPECT_TRUE(list.helper.asked.empty());
}

TEST(ListKeeper, SaysWhereASelectionWasNotTaken)
{
    Kept list;
    list.helper.rows = {row(u"a"_s)};
    list.helper.takes = false;
    int notTaken = 0;
    QObject::connect(&list.keeper, &ListKeeper::notTaken, [&notTaken] { ++notTaken; });
    list.keeper.reload();
    list.answer();
    list.model.setChecked({0}, true);
    ASSERT_TRUE(waitFor([&] { return !list.helper.asked.empty(); }));
    list.answer();
    EXPECT_EQ(notTaken, 1);
    EXPECT_EQ(shown(list.model), "a");
}

TEST(ListKeeper, ReadsALongListInSlices)
{
    Kept list;
    for (int i = 0; i < 20'000; ++i)
        list.helper.rows.append(row(u"Row %1"_s.arg(i)));
    list.keeper.reload();
    list.helper.answer();
    EXPECT_EQ(list.model.rowCount(), 0) << "read in one go";
    ASSERT_TRUE(waitFor([&] { return list.model.rowCount() == 20'000; }));
}

} // namespace
