// The plan and the run after it, held against a second working out of the rules, slowly and from
// the rules alone, over random homes, sticks, settings and old indexes.
//
// CARAVEL_MODEL_ROUNDS is the number of rounds, 300 unless it says otherwise.

#include "platform/lists/PropertyList.h"
#include "support/FailingFileManager.h"
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

/// Contents by path below the volume; an empty folder ends in "/", a link has none.
using Files = std::map<QString, QByteArray>;

bool liesIn(const QString &path, const QString &folder)
{
    return path.startsWith(folder + u'/');
}

/// Where no other file or folder is.
void put(Files &files, const QString &path, const QByteArray &contents)
{
    for (const auto &[other, its] : files) {
        if (other == path || liesIn(other, path) || liesIn(path, other))
            return;
    }
    files[path] = contents;
}

struct Wish
{
    QString source; ///< its name
    QString said;   ///< where it goes, below the volume, as the kind says it
    std::optional<QByteArray> contents;
    QString place = said; ///< as the stick has it
};

struct Kind
{
    QString name, folder;
    bool clears = true;
    std::vector<Wish> wishes;
    std::optional<std::set<QString>> index; ///< "/PSP/MUSIC/…"
};

struct World
{
    bool isFat = false, ownOnly = false;
    Files stick;
    std::set<QString> links; ///< that are among the stick's files
    std::vector<Kind> kinds;
    QStringList plan; ///< of the last run: "copy PSP/MUSIC/…"
    int processed = 0;

    QString held(QString path) const
    {
        static const QRegularExpression unheld(u"[?:]|\\.(?=\\.*(/|$))"_s);
        return isFat ? path.replace(unheld, u"_"_s) : path;
    }
    QString key(QString path) const
    {
        static const QRegularExpression dots(u"\\.+(?=/|$)"_s);
        return isFat ? path.remove(dots) : path;
    }
    bool isOwn(const Kind &kind, const QString &path) const
    {
        return kind.index && std::ranges::any_of(*kind.index, [&](const QString &entry) {
                   return key(entry) == key(u'/' + path);
               });
    }
    bool isBehindALink(const QString &path) const
    {
        return std::ranges::any_of(links, [&](const QString &link) { return liesIn(path, link); });
    }
};

// --- The rules: plain loops, no care for speed

void setPlacesApart(const World &world, Kind &kind)
{
    std::map<QString, int> seen;
    std::set<QString> given;
    for (Wish &wish : kind.wishes)
        given.insert(world.key(wish.place = world.held(wish.said)));
    for (Wish &wish : kind.wishes) {
        int &times = seen[world.key(wish.place)];
        const QString place = wish.place;
        const qsizetype last = place.lastIndexOf(u'.');
        const bool hasExtension = last > place.lastIndexOf(u'/') + 1 && last + 1 < place.size();
        const qsizetype dot = hasExtension ? last : place.size();
        while (times > 0) {
            wish.place = place.first(dot) + u'.' + QString::number(times) + place.mid(dot);
            if (!world.isFat || given.insert(world.key(wish.place)).second)
                break;
            ++times;
        }
        ++times;
    }
}

/// Plans the kind; what is replaced and removed leaves the stick. What is left to be copied.
std::vector<Wish> prepare(World &world, const Kind &kind, std::set<QString> &index)
{
    std::vector<Wish> queue;
    const Files before = world.stick;
    QStringList replaced;
    for (const Wish &wish : kind.wishes) {
        const auto say = [&](const char *what) {
            world.plan.append(QLatin1String(what) + u' ' + wish.place);
        };
        if (!wish.contents || world.isBehindALink(wish.place)) {
            say("leaveOut");
            continue;
        }
        const auto there = world.stick.find(wish.place);
        if (there != world.stick.end() && !world.links.contains(wish.place) &&
            there->second.size() == wish.contents->size()) {
            index.insert(u'/' + wish.place);
            say("inPlace");
            continue;
        }
        const auto isInTheWay = [&](const auto &file) {
            return file.first == wish.place || liesIn(file.first, wish.place);
        };
        // Unless that has gone for an earlier wish, if only to leave an empty folder.
        const bool replaces = std::ranges::any_of(before, isInTheWay) &&
                              std::ranges::none_of(replaced, [&](const QString &gone) {
                                  return wish.place == gone || liesIn(wish.place, gone);
                              });
        std::erase_if(world.stick, isInTheWay);
        if (replaces)
            replaced.append(wish.place);
        say(!replaces ? "copy" : world.isOwn(kind, wish.place) ? "replace" : "replace!");
        if (!wish.source.startsWith(u"._"))
            queue.push_back(wish);
    }
    return queue;
}

void cleanUp(World &world, const Kind &kind)
{
    std::set<QString> wanted;
    for (const Wish &wish : kind.wishes)
        wanted.insert(world.key(wish.place));
    if (world.links.contains(kind.folder))
        return;
    std::erase_if(world.stick, [&](const auto &file) {
        const QString &path = file.first;
        if (!liesIn(path, kind.folder) || path == kind.folder + u"/.caravel"_s)
            return false;
        const bool isClutter = path.section(u'/', -1) == u".DS_Store";
        const bool goes = path.endsWith(u'/') || isClutter ||
                          (kind.clears && !wanted.contains(world.key(path)) &&
                           (!world.ownOnly || !kind.index || world.isOwn(kind, path)));
        if (goes && !path.endsWith(u'/'))
            world.plan.append(
                (isClutter || world.isOwn(kind, path) ? u"remove "_s : u"remove! "_s) + path);
        return goes;
    });
}

World afterRun(World world)
{
    world.plan.clear();
    world.processed = 0;
    std::vector<std::vector<Wish>> queues;
    std::vector<std::set<QString>> indexes(world.kinds.size());
    for (size_t i = 0; i < world.kinds.size(); ++i)
        queues.push_back(prepare(world, world.kinds[i], indexes[i]));
    for (const Kind &kind : world.kinds)
        cleanUp(world, kind);
    for (size_t i = 0; i < world.kinds.size(); ++i) {
        for (const Wish &wish : queues[i]) {
            ++world.processed;
            indexes[i].insert(u'/' + wish.place);
            if (!world.stick.contains(wish.place))
                world.links.erase(wish.place);
            put(world.stick, wish.place, *wish.contents);
            const qsizetype name = wish.place.lastIndexOf(u'/') + 1;
            world.stick.erase(wish.place.first(name) + u"._"_s + wish.place.mid(name));
        }
        world.kinds[i].index = indexes[i];
    }
    std::erase_if(world.links, [&](const QString &link) { return !world.stick.contains(link); });
    world.plan.sort();
    return world;
}

// --- Random worlds

class Dice
{
public:
    explicit Dice(unsigned seed)
        : m_random(seed)
    {
    }
    int below(int number) { return static_cast<int>(m_random() % static_cast<unsigned>(number)); }
    bool once(int in) { return below(in) == 0; }
    QByteArray bytes() { return QByteArray(1 + below(3), static_cast<char>('a' + below(26))); }
    QString place()
    {
        static const QStringList places = list("A/x.mp3 A/X.mp3 A/x.1.mp3 A/x A a/x.mp3 B B/in "
                                               "B/C/D/in R.E.M./y R.E.M/y R.E.M_/y q? q: "
                                               "q_ q_.1 ._q_ L/in L/deep/er L .x .x.1 end. end");
        return places[below(static_cast<int>(places.size()))];
    }

private:
    std::mt19937 m_random;
};

World roll(Dice &dice)
{
    World world;
    world.isFat = dice.once(2);
    world.ownOnly = dice.once(2);
    for (const char *kind : {"Music PSP/MUSIC", "Photos PSP/PHOTO"}) {
        Kind &rolled = world.kinds.emplace_back(list(kind)[0], list(kind)[1], !dice.once(4));
        for (int i = 0; i < dice.below(12); ++i)
            rolled.wishes.push_back({(dice.once(8) ? u"._%1"_s : u"%1"_s).arg(i),
                                     rolled.folder + u'/' + dice.place(),
                                     dice.once(8) ? std::nullopt : std::optional(dice.bytes())});
        setPlacesApart(world, rolled);
        // What an earlier run, another program or a file manager may have left.
        for (const Wish &wish : rolled.wishes) {
            if (dice.once(3))
                put(world.stick, wish.place, dice.bytes());
        }
        for (int i = 0; i < dice.below(8); ++i)
            put(world.stick, world.held(rolled.folder + u'/' + dice.place()), dice.bytes());
        for (const char *stray :
             {"Old/gone", "Old/.DS_Store", ".DS_Store", ".caravel", "E/F/", "._A", "A/._x.mp3"}) {
            if (dice.once(2))
                put(world.stick, rolled.folder + u"/"_s + QLatin1String(stray),
                    QByteArrayView(stray).endsWith("/") ? QByteArray() : dice.bytes());
        }
        if (dice.once(3) && !world.stick.contains(rolled.folder + u"/L"_s)) {
            put(world.stick, rolled.folder + u"/L"_s, {});
            if (world.stick.contains(rolled.folder + u"/L"_s))
                world.links.insert(rolled.folder + u"/L"_s);
        }
        if (!dice.once(3)) {
            rolled.index = {u"/PSP/MUSIC/vanished"_s, u'/' + rolled.folder + u"/R.E.M./y"_s};
            for (const auto &[path, contents] : world.stick) {
                if (dice.once(2))
                    rolled.index->insert(u'/' + path);
            }
        }
    }
    put(world.stick, u"PSP/GAME/EBOOT.PBP"_s, "game");
    return world;
}

// --- The comparison

/// A disk that says what file system it has.
class NamedFileManager : public FileManager
{
public:
    QString type;
    QString fileSystemType(const QString &) const override { return type; }
};

class PlanModel
{
public:
    explicit PlanModel(const World &world)
        : m_world(world)
        , m_lists(listsOf(world))
        , m_harness(catalogueOf(m_lists))
    {
        m_files.type = world.isFat ? u"vfat"_s : u"ext4"_s;
        FileManager::setDefaultManager(&m_files);
        m_harness.mountStick();
        Settings::ownOnly.set(!world.ownOnly);
        build();
    }
    ~PlanModel() { FileManager::setDefaultManager(nullptr); }

    void runAndCompare()
    {
        const World after = afterRun(m_world);
        ModuleList modules;
        for (const ModuleKind &kind : catalogueOf(m_lists))
            modules.push_back(kind.make(m_harness.stick()));
        const SyncPlan plan = SyncPlanner(m_harness.stick(), [] { return false; }).plan(modules);
        ASSERT_EQ(joined(shown(plan)), joined(after.plan));
        ASSERT_EQ(described(onStick()), described(m_world.stick)) << "a plan changes nothing";
        ASSERT_TRUE(m_harness.run());
        ASSERT_EQ(described(onStick()), described(after.stick));
        ASSERT_EQ(readFile(m_harness.home(u"precious/in"_s)), "mine");
        ASSERT_EQ(m_harness.delegate.processed(), after.processed);
        for (const Kind &kind : after.kinds) {
            QStringList index = m_harness.index(kind.name);
            index.sort();
            index.removeDuplicates();
            ASSERT_EQ(joined(index), joined({kind.index->begin(), kind.index->end()}));
        }
        m_world = after;
    }

private:
    std::vector<ListModule::Wishes> listsOf(const World &world)
    {
        std::vector<ListModule::Wishes> all;
        for (const Kind &kind : world.kinds) {
            all.push_back({[this, name = kind.name] {
                               std::vector<CVSyncItem> items;
                               for (const Kind &its : m_world.kinds) {
                                   for (const Wish &wish : its.wishes) {
                                       if (its.name == name)
                                           items.emplace_back(sourceOf(its, wish),
                                                              m_harness.stick(wish.said),
                                                              wish.place);
                                   }
                               }
                               return items;
                           },
                           u'/' + kind.folder, kind.clears, kind.name});
        }
        return all;
    }
    ModuleCatalogue catalogueOf(const std::vector<ListModule::Wishes> &wishes) const
    {
        return {ListModule::kind(u"Music"_s, wishes[0]), ListModule::kind(u"Photos"_s, wishes[1])};
    }
    QString sourceOf(const Kind &kind, const Wish &wish) const
    {
        return m_harness.home(kind.name + u'/' + wish.source);
    }
    void build() const
    {
        writeFile(m_harness.home(u"precious/in"_s), "mine");
        for (const Kind &kind : m_world.kinds) {
            for (const Wish &wish : kind.wishes) {
                if (wish.contents)
                    writeFile(sourceOf(kind, wish), *wish.contents);
            }
            if (kind.index)
                writeFile(m_harness.stick(u".caravel/%1SyncIndex.plist"_s.arg(kind.name)),
                          PropertyList::toXml(QStringList(kind.index->begin(), kind.index->end())));
        }
        for (const auto &[path, contents] : m_world.stick) {
            QDir().mkpath(QFileInfo(m_harness.stick(path)).path());
            if (m_world.links.contains(path))
                QFile::link(m_harness.home(u"precious"_s), m_harness.stick(path));
            else if (!path.endsWith(u'/'))
                writeFile(m_harness.stick(path), contents);
        }
    }
    /// The files and the empty folders of the kinds and of the games.
    Files onStick() const
    {
        Files files;
        const QStringList paths = treeOf(m_harness.stick(u"PSP"_s));
        for (qsizetype i = 0; i < paths.size(); ++i) {
            const bool isFolder = paths[i].endsWith(u'/');
            if (!isFolder || (!paths.value(i + 1).startsWith(paths[i]) && paths[i].count(u'/') > 1))
                files[u"PSP/"_s + paths[i]] =
                    isFolder ? QByteArray() : readFile(m_harness.stick(u"PSP/"_s + paths[i]));
        }
        return files;
    }
    QStringList shown(const SyncPlan &plan) const
    {
        const char *const actions[] = {"copy", "replace", "inPlace", "leaveOut"};
        const auto marked = [this](QString what, bool isStranger, const QString &path) {
            return what + (isStranger ? u"! "_s : u" "_s) + path.mid(m_harness.stick().size() + 1);
        };
        QStringList lines;
        for (const KindPlan &kind : plan.kinds) {
            for (const PlannedItem &planned : kind.items)
                lines.append(marked(QLatin1String(actions[static_cast<int>(planned.action)]),
                                    planned.isStranger, planned.item.destination));
            for (const PlannedRemoval &removal : kind.removals) {
                if (!removal.isEmptiedFolder)
                    lines.append(marked(u"remove"_s, removal.isStranger, removal.path));
            }
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
    std::vector<ListModule::Wishes> m_lists;
    NamedFileManager m_files;
    SyncHarness m_harness;
};

} // namespace

TEST(PlanModel, AgreesWithThePlanAndTheRun)
{
    if (QFileInfo(u"/dev/shm"_s).isWritable())
        qputenv("TMPDIR", "/dev/shm");
    bool isSet = false;
    const int given = qEnvironmentVariableIntValue("CARAVEL_MODEL_ROUNDS", &isSet);
    for (int round = 0; round < (isSet ? given : 300); ++round) {
        SCOPED_TRACE(round);
        Dice dice(static_cast<unsigned>(round));
        PlanModel model(roll(dice));
        model.runAndCompare();
        if (!testing::Test::HasFatalFailure())
            model.runAndCompare();
        if (testing::Test::HasFatalFailure())
            return;
    }
}
