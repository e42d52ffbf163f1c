// The plan and the run after it, held against a second working out of the rules, slowly and from
// the rules alone, over random homes, sticks, settings and old indexes.
//
// CARAVEL_MODEL_ROUNDS is the number of rounds, 300 unless it says otherwise.

#include "platform/lists/PropertyList.h"
#include "support/ListModule.h"
#include "sync/SyncPlanner.h"
#include "util/Settings.h"

#include <QDir>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>

namespace {

/// Contents by place in the kind's folder; an empty folder ends in "/".
using Files = std::map<QString, QByteArray>;

bool isAtOrIn(const QString &path, const QString &folder)
{
    return path == folder || path.startsWith(folder + u'/');
}

/// Where no other file or folder is.
void put(Files &files, const QString &place, const QByteArray &contents)
{
    if (std::ranges::none_of(files, [&](const auto &file) {
            return isAtOrIn(file.first, place) || isAtOrIn(place, file.first);
        }))
        files[place] = contents;
}

struct Wish
{
    QString source; ///< its name
    QString said;   ///< the place that the kind says
    std::optional<QByteArray> contents;
    QString place = said; ///< as the stick has it
};

struct World
{
    bool isFat = false, clears = true, ownOnly = false;
    Files stick;
    std::set<QString> links; ///< of the stick's files; they lead to the user's own
    std::vector<Wish> wishes;
    std::optional<std::set<QString>> index;
    std::set<QString> unfinished; ///< what an interrupted run was to place
    QStringList plan;             ///< of the last run: "copy A/x.mp3"
    int processed = 0;

    QString key(QString place) const
    {
        static const QRegularExpression dots(u"\\.+(?=/|$)"_s);
        return isFat ? place.remove(dots) : place;
    }
    QString held(QString place) const
    {
        static const QRegularExpression unheld(u"[?:]|\\.(?=\\.*(/|$))|(?<![^/])\\.(?=[_?:])"_s);
        return isFat ? place.replace(unheld, u"_"_s) : place;
    }
    bool isListed(const QString &place, const std::set<QString> &places) const
    {
        return std::ranges::any_of(places,
                                   [&](const QString &entry) { return key(entry) == key(place); });
    }
    bool isOwn(const QString &place) const
    {
        return (index && isListed(place, *index)) || isListed(place, unfinished);
    }
    bool isBehindALink(const QString &place) const
    {
        return std::ranges::any_of(
            links, [&](const QString &link) { return place != link && isAtOrIn(place, link); });
    }
};

// --- The rules: plain loops, no care for speed

void setPlacesApart(World &world)
{
    std::map<QString, int> seen;
    std::set<QString> given;
    for (Wish &wish : world.wishes)
        given.insert(world.key(wish.place = world.held(wish.said)));
    for (Wish &wish : world.wishes) {
        int &times = seen[world.key(wish.place)];
        const QString place = wish.place;
        const qsizetype last = place.lastIndexOf(u'.');
        const bool hasExtension = last > place.lastIndexOf(u'/') + 1 && last + 1 < place.size();
        const qsizetype dot = hasExtension ? last : place.size();
        for (; times > 0; ++times) {
            wish.place = place.first(dot) + u'.' + QString::number(times) + place.mid(dot);
            if (!world.isFat || given.insert(world.key(wish.place)).second)
                break;
        }
        ++times;
    }
}

/// Plans; what is replaced leaves the stick. What is left to be copied.
std::vector<Wish> prepare(World &world, std::set<QString> &index)
{
    std::vector<Wish> queue;
    const Files before = world.stick;
    QStringList replaced;
    for (const Wish &wish : world.wishes) {
        const auto say = [&](const char *what) {
            world.plan.append(QLatin1String(what) + u' ' + wish.place);
        };
        const auto isInTheWay = [&](const auto &file) {
            return isAtOrIn(file.first, wish.place);
        };
        const auto there = world.stick.find(wish.place);
        if (!wish.contents || world.isBehindALink(wish.place)) {
            say("leaveOut");
            continue;
        }
        if (there != world.stick.end() && there->second.size() == wish.contents->size() &&
            (there->second == *wish.contents || !world.isListed(wish.place, world.unfinished))) {
            index.insert(wish.place);
            say("inPlace");
            continue;
        }
        // Unless that has gone for an earlier wish, if only to leave an empty folder.
        const bool replaces = std::ranges::any_of(before, isInTheWay) &&
                              std::ranges::none_of(replaced, [&](const QString &gone) {
                                  return isAtOrIn(wish.place, gone);
                              });
        std::erase_if(world.stick, isInTheWay);
        if (replaces)
            replaced.append(wish.place);
        say(!replaces ? "copy" : world.isOwn(wish.place) ? "replace" : "replace!");
        if (!wish.source.startsWith(u"._"))
            queue.push_back(wish);
    }
    return queue;
}

void cleanUp(World &world)
{
    std::set<QString> wanted;
    for (const Wish &wish : world.wishes)
        wanted.insert(world.key(wish.place));
    std::erase_if(world.stick, [&](const auto &file) {
        const QString &place = file.first;
        const bool isClutter = place.section(u'/', -1) == u".DS_Store";
        const bool isUnwanted = world.clears && !wanted.contains(world.key(place)) &&
                                (!world.ownOnly || !world.index || world.isOwn(place));
        if (place == u".caravel" || !(place.endsWith(u'/') || isClutter || isUnwanted))
            return false;
        if (!place.endsWith(u'/'))
            world.plan.append((isClutter || world.isOwn(place) ? u"remove "_s : u"remove! "_s) +
                              place);
        return true;
    });
}

World afterRun(World world)
{
    world.plan.clear();
    std::set<QString> index;
    const std::vector<Wish> queue = prepare(world, index);
    cleanUp(world);
    for (const Wish &wish : queue) {
        index.insert(wish.place);
        if (!world.stick.contains(wish.place))
            world.links.erase(wish.place);
        put(world.stick, wish.place, *wish.contents);
        const qsizetype name = wish.place.lastIndexOf(u'/') + 1;
        world.stick.erase(wish.place.first(name) + u"._"_s + wish.place.mid(name));
    }
    std::erase_if(world.links, [&](const QString &link) { return !world.stick.contains(link); });
    world.index = index;
    world.unfinished.clear();
    world.processed = static_cast<int>(queue.size());
    world.plan.sort();
    return world;
}

/// What an earlier run, another program or a file manager may have left.
World roll(unsigned seed)
{
    std::mt19937 random(seed);
    const auto below = [&](unsigned number) {
        return static_cast<int>(random() % number);
    };
    const auto once = [&](unsigned in) {
        return below(in) == 0;
    };
    const auto bytes = [&] {
        return QByteArray(1 + below(3), static_cast<char>('a' + below(26)));
    };
    const auto place = [&] {
        static const QStringList places =
            list("A/x.mp3 A/X.mp3 A/x.1.mp3 A/x A a/x.mp3 B B/in B/C/D/in R.E.M./y R.E.M/y "
                 "R.E.M_/y q? q: q_ q_.1 ._q_ L/in L/deep/er L .x .x.1 end. end");
        return places[below(static_cast<unsigned>(places.size()))];
    };
    World world;
    world.isFat = once(2);
    world.clears = !once(4);
    world.ownOnly = once(2);
    for (int i = below(14); i > 0; --i)
        world.wishes.push_back({(once(8) ? u"._%1"_s : u"%1"_s).arg(i), place(),
                                once(8) ? std::nullopt : std::optional(bytes())});
    setPlacesApart(world);
    for (const Wish &wish : world.wishes) {
        if (once(3))
            put(world.stick, wish.place, bytes());
    }
    for (int i = below(8); i > 0; --i)
        put(world.stick, world.held(place()), bytes());
    for (const QString &stray :
         list("Old/gone Old/.DS_Store .DS_Store .caravel ._A A/._x.mp3 E/F/"))
        put(world.stick, once(2) ? stray : u"Old/gone"_s,
            stray.endsWith(u'/') ? QByteArray() : bytes());
    if (once(3) && !world.stick.contains(u"L"_s)) {
        put(world.stick, u"L"_s, {});
        if (world.stick.contains(u"L"_s))
            world.links.insert(u"L"_s);
    }
    if (!once(3))
        world.index = {u"vanished"_s, u"R.E.M./y"_s};
    const bool isInterrupted = once(3); // fewer wishes than are compared by their contents
    for (const auto &[path, contents] : world.stick) {
        if (world.index && once(2))
            world.index->insert(path);
        else if (isInterrupted && once(2))
            world.unfinished.insert(path);
    }
    return world;
}

// --- The comparison

class PlanModel : private ListHarness, private FileManager
{
public:
    explicit PlanModel(const World &world)
        : m_world(world)
    {
        setDefaultManager(this);
        mountStick();
        Settings::ownOnly.set(!world.ownOnly);
        wishes.clears = world.clears;
        wishes.items = [this] {
            std::vector<CVSyncItem> items;
            for (const Wish &wish : m_world.wishes)
                items.emplace_back(sources / wish.source, place(wish.said), QString());
            return items;
        };
        build();
    }
    ~PlanModel() override { setDefaultManager(nullptr); }

    void runAndCompare()
    {
        const World after = afterRun(m_world);
        ModuleList modules;
        modules.push_back(ListModule::kind(u"Music"_s, wishes).make(stick()));
        EXPECT_EQ(joined(shown(SyncPlanner(stick(), [] { return false; }).plan(modules))),
                  joined(after.plan));
        EXPECT_EQ(described(onStick()), described(m_world.stick)) << "a plan changes nothing";
        EXPECT_TRUE(run());
        EXPECT_EQ(described(onStick()), described(after.stick));
        EXPECT_EQ(joined(treeOf(home(u"mine"_s))), "in") << "behind a link";
        EXPECT_EQ(delegate.processed(), after.processed);
        std::set<QString> listed;
        for (const QString &entry : index(u"Music"_s))
            listed.insert(entry.mid(11));
        EXPECT_EQ(listed, after.index);
        m_world = after;
    }

private:
    QString fileSystemType(const QString &) const override
    {
        return m_world.isFat ? u"vfat"_s : u"ext4"_s;
    }

    void build() const
    {
        writeFile(home(u"mine/in"_s), "mine");
        QDir().mkpath(place({}));
        for (const Wish &wish : m_world.wishes) {
            if (wish.contents)
                writeFile(sources / wish.source, *wish.contents);
        }
        for (const auto &[path, contents] : m_world.stick) {
            QDir().mkpath(QFileInfo(place(path)).path());
            if (m_world.links.contains(path))
                QFile::link(home(u"mine"_s), place(path));
            else if (!path.endsWith(u'/'))
                put(path, contents);
        }
        if (m_world.index)
            writeFile(stick(u".caravel/MusicSyncIndex.plist"_s), listed(*m_world.index));
        if (!m_world.unfinished.empty())
            writeFile(stick(u".caravel/Unfinished"_s), listed(m_world.unfinished));
    }
    static QByteArray listed(const std::set<QString> &places)
    {
        QVariantList entries;
        for (const QString &place : places)
            entries.append(u"/PSP/MUSIC/"_s + place);
        return PropertyList::toXml(entries);
    }
    Files onStick() const
    {
        Files files;
        const QStringList paths = treeOf(place({}).chopped(1));
        for (qsizetype i = 0; i < paths.size(); ++i) {
            const bool isFolder = paths[i].endsWith(u'/');
            if (!isFolder || !paths.value(i + 1).startsWith(paths[i]))
                files[paths[i]] = isFolder ? QByteArray() : ::readFile(place(paths[i]));
        }
        return files;
    }
    QStringList shown(const SyncPlan &plan) const
    {
        const char *const actions[] = {"copy", "replace", "inPlace", "leaveOut"};
        const auto marked = [this](const char *what, bool isStranger, const QString &path) {
            return QLatin1String(what) + (isStranger ? u"! "_s : u" "_s) +
                   path.mid(place({}).size());
        };
        QStringList lines;
        for (const PlannedItem &item : plan.kinds[0].items)
            lines.append(marked(actions[static_cast<int>(item.action)], item.isStranger,
                                item.item.destination));
        for (const PlannedRemoval &removal : plan.kinds[0].removals) {
            if (!removal.isEmptiedFolder)
                lines.append(marked("remove", removal.isStranger, removal.path));
        }
        lines.sort();
        return lines;
    }
    static std::string described(const Files &files)
    {
        QStringList lines;
        for (const auto &[path, contents] : files)
            lines.append(path + u'=' + QString::fromUtf8(contents));
        return joined(lines);
    }

    World m_world;
};

} // namespace

TEST(PlanModel, AgreesWithThePlanAndTheRun)
{
    if (QFileInfo(u"/dev/shm"_s).isWritable())
        qputenv("TMPDIR", "/dev/shm");
    bool isSet = false;
    const int given = qEnvironmentVariableIntValue("CARAVEL_MODEL_ROUNDS", &isSet);
    for (int round = 0; round < (isSet ? given : 300) && !HasFailure(); ++round) {
        SCOPED_TRACE(round);
        PlanModel model(roll(static_cast<unsigned>(round)));
        model.runAndCompare();
        model.runAndCompare();
    }
}
