#include "modules/model/Model.h"

#include "platform/lists/PropertyList.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <algorithm>

namespace model {

namespace {

/// The files below a folder, and the empty folders with a trailing slash.
Files treeBelow(const QString &folder, const QString &prefix = {})
{
    Files files;
    const QStringList paths = treeOf(folder);
    for (qsizetype i = 0; i < paths.size(); ++i) {
        const bool isFolder = paths[i].endsWith(u'/');
        if (!isFolder || !paths.value(i + 1).startsWith(paths[i]))
            files[prefix + paths[i]] = isFolder ? QByteArray() : readFile(folder + u'/' + paths[i]);
    }
    return files;
}

std::string describe(const Files &files)
{
    QString text;
    for (const auto &[path, contents] : files)
        text += path + u'=' + QString::fromUtf8(contents) + u'\n';
    return text.toStdString();
}

// --- The rules that all modules share: plain loops, no care for speed

void setPlacesApart(std::vector<Wish> &wishes, const QString &folder)
{
    std::map<QString, int> seen;
    for (Wish &wish : wishes) {
        wish.place.prepend(folder + u'/');
        const int times = seen[wish.place]++;
        const QString extension = extensionOf(wish.place);
        if (times > 0)
            wish.place =
                wish.place.chopped(extension.size()) + QString::number(times) + u'.' + extension;
    }
}

/// Leaves in `world` what is on the stick when nothing has been copied yet, and returns what has
/// to be.
std::vector<Wish> filter(World &world, const std::vector<Wish> &wishes, std::set<QString> &index)
{
    std::vector<Wish> queue;
    for (const Wish &wish : wishes) {
        if (!world.home.contains(wish.source))
            continue;
        const auto there = world.stick.find(wish.place);
        if (there != world.stick.end() && there->second.size() == world.home[wish.source].size()) {
            index.insert(u'/' + wish.place);
            continue;
        }
        std::erase_if(world.stick, [&](const auto &file) {
            return file.first == wish.place || file.first.startsWith(wish.place + u'/');
        });
        queue.push_back(wish);
    }
    return queue;
}

void cleanUp(const Kind &kind, World &world, const std::vector<Wish> &wishes)
{
    std::set<QString> places;
    for (const Wish &wish : wishes)
        places.insert(wish.place);
    const bool ownOnly = world.setting("ownOnly") == 0 && world.index;
    std::erase_if(world.stick, [&](const auto &file) {
        const QString &path = file.first;
        if (!path.startsWith(kind.folder + u'/') || path == kind.folder + u"/.caravel"_s)
            return false;
        if (path.endsWith(u'/') || path.section(u'/', -1) == u".DS_Store")
            return true;
        return kind.clears && !places.contains(path) &&
               (!ownOnly || world.index->contains(u'/' + path));
    });
}

World afterRun(const Kind &kind, World world, std::vector<Wish> wishes)
{
    world.processed = 0;
    if (world.setting("firmwareVersion") < kind.leastFirmware)
        return world;
    const bool isOff = world.settings[u"sync"_s + kind.name] == 0;
    if (isOff)
        wishes.clear();
    for (const auto &[path, contents] : world.made) {
        if (!isOff)
            world.home[path] = contents;
    }
    std::set<QString> index;
    const std::vector<Wish> queue = filter(world, wishes, index);
    cleanUp(kind, world, wishes);
    for (const Wish &wish : queue) {
        if (wish.source.section(u'/', -1).startsWith(u"._"))
            continue;
        ++world.processed;
        index.insert(u'/' + wish.place);
        put(world.stick, wish.place, world.home[wish.source]);
        const QString name = wish.place.section(u'/', -1);
        world.stick.erase(wish.place.chopped(name.size()) + u"._"_s + name);
    }
    world.index = index;
    return world;
}

// --- Random worlds

void rollSettings(World &world, Dice &dice, const Kind &kind)
{
    auto settings = kind.settings;
    const QByteArray takesPartSetting = "sync" + kind.name.toLatin1();
    settings.insert(settings.end(), {{"firmwareVersion", {0, 1, 1, 2}},
                                     {"ownOnly", {0, 1}},
                                     {"syncDropboxes", {0, 1}},
                                     {"useSyncProfiles", {0, 1}},
                                     {takesPartSetting.constData(), {0, 1, 1, 1, 1, 1}}});
    for (const auto &[name, values] : settings)
        world.settings[QString::fromLatin1(name)] = dice.of(values);
}

/// What an earlier run, another program or a file manager may have left.
void litter(World &world, Dice &dice, const Kind &kind, const std::vector<Wish> &wishes)
{
    Files sources = world.made;
    sources.insert(world.home.begin(), world.home.end());
    for (const Wish &wish : wishes) {
        const QString &path = wish.place;
        const QString name = path.section(u'/', -1);
        const QByteArray same(sources[wish.source].size(), '=');
        if (dice.once(5))
            put(world.stick, path, dice.once(3) ? same : dice.bytes());
        if (dice.once(9))
            put(world.stick, path.chopped(name.size()) + u"._"_s + name, "fork");
        if (dice.once(25))
            put(world.stick, path + u"/inside"_s, dice.bytes());
        if (dice.once(25))
            put(world.stick, path.section(u'/', 0, -2), dice.bytes());
    }
    for (const char *stray :
         {"/Old/gone.mp3", "/Old/.DS_Store", "/.DS_Store", "/stray.txt", "/A/other.mp3",
          "/.caravel", "/deep/er/still.jpg", ".txt", "2/besides.jpg"}) {
        if (dice.once(2))
            put(world.stick, kind.folder + QString::fromLatin1(stray), dice.bytes());
    }
    put(world.stick, u"PSP/GAME/EBOOT.PBP"_s, dice.bytes());
    if (dice.once(2))
        put(world.stick, kind.folder + u"/Empty/Inner/"_s, {});
    if (dice.once(3))
        return;
    world.index = {u'/' + kind.folder + u"/vanished.mp3"_s};
    for (const auto &[path, contents] : world.stick) {
        if (dice.once(2))
            world.index->insert(u'/' + path);
    }
}

void build(const World &world, const Kind &kind, SyncHarness &harness)
{
    for (const auto &[path, contents] : world.home)
        writeFile(path, contents);
    for (const auto &[path, contents] : world.stick) {
        if (path.endsWith(u'/'))
            QDir().mkpath(harness.stick(path));
        else
            writeFile(harness.stick(path), contents);
    }
    const auto writeList = [&](const char *format, const std::optional<std::set<QString>> &list) {
        if (list)
            writeFile(harness.stick(QString::fromLatin1(format).arg(kind.name)),
                      PropertyList::toXml(QVariantList(list->begin(), list->end())));
    };
    writeList(".caravel/%1SyncIndex.plist", world.index);
    writeList(".caravel/%1.plist", world.profile);
    for (const auto &[name, value] : world.settings)
        harness.defaults.setObject(name, value);
    harness.defaults.setObject(u"enabled"_s + kind.name,
                               QVariantList(world.preferred.begin(), world.preferred.end()));
}

// --- The comparison

void runAndCompare(const Kind &kind, SyncHarness &harness, const World &after)
{
    const QString folder = harness.stick(kind.folder);
    const bool wasThere = QFileInfo::exists(folder);
    ASSERT_TRUE(harness.run());
    ASSERT_TRUE(QFileInfo::exists(folder) || !wasThere);
    Files stick = treeBelow(harness.stick());
    std::erase_if(stick, [&kind](const auto &file) {
        const QString &path = file.first;
        const bool isAbove = path.endsWith(u'/') && (kind.folder + u'/').startsWith(path);
        return isAbove || path.startsWith(u".caravel/") || path == u"MEMSTICK.IND";
    });
    ASSERT_EQ(describe(stick), describe(after.stick));
    const QString home = harness.home({});
    ASSERT_EQ(describe(treeBelow(home.chopped(1), home)), describe(after.home));
    ASSERT_EQ(harness.delegate.events.filter(u"syncWillProcessItem"_s).size(), after.processed);
    const QStringList listed = harness.index(kind.name);
    ASSERT_EQ(std::set<QString>(listed.begin(), listed.end()),
              after.index.value_or(std::set<QString>{u"no index"_s}));
}

void playRound(const Kind &kind, unsigned round)
{
    SyncHarness harness{kind.catalogue};
    harness.mountStick();
    Dice dice(round);
    World world;
    rollSettings(world, dice, kind);
    const QString documents = dice.once(2) ? u"Documents"_s : u"My Things"_s;
    world.documents = harness.home(documents + u"/Caravel"_s);
    harness.defaults.setObject(u"CaravelFolder"_s, u"~/"_s + documents);
    std::vector<Wish> wishes = kind.roll(world, dice, harness);
    setPlacesApart(wishes, kind.folder);
    litter(world, dice, kind, wishes);
    build(world, kind, harness);
    const World first = afterRun(kind, world, wishes);
    runAndCompare(kind, harness, first);
    if (!testing::Test::HasFatalFailure())
        runAndCompare(kind, harness, afterRun(kind, first, wishes));
}

} // namespace

QString Dice::word()
{
    static const char *const words[] = {
        "  ",    ".. ",      "A",    "Band", "AC/DC: Live?", "Café",     "Cafe\u0301", "\"Q\"<>|",
        "Ends.", " blanks ", "日本", "x",    "x.1",          "back\\s*", "Song",       "Dots. "};
    return QString::fromUtf8(of(words));
}

std::set<QString> World::selected() const
{
    return setting("useSyncProfiles") != 0 && profile ? *profile : preferred;
}

void holdAgainstTheRules(const Kind &kind)
{
    if (QFileInfo(u"/dev/shm"_s).isWritable())
        qputenv("TMPDIR", "/dev/shm");
    bool isSet = false;
    const int given = qEnvironmentVariableIntValue("CARAVEL_MODEL_ROUNDS", &isSet);
    for (int round = 0; round < (isSet ? given : 300); ++round) {
        SCOPED_TRACE(round);
        playRound(kind, static_cast<unsigned>(round));
        if (testing::Test::HasFatalFailure())
            return;
    }
}

void put(Files &files, const QString &path, const QByteArray &contents)
{
    for (const auto &[other, its] : files) {
        if (other == path || other.startsWith(path + u'/') || path.startsWith(other + u'/'))
            return;
    }
    files[path] = contents;
}

std::map<int, QString> rollFiles(World &world, Dice &dice, const QString &folder,
                                 const std::vector<const char *> &extensions)
{
    std::map<int, QString> files;
    for (int number = 1; number <= 2 + dice.below(10); ++number) {
        files[number] =
            folder + u"/%1.%2"_s.arg(number).arg(QString::fromLatin1(dice.of(extensions)));
        if (!dice.once(8))
            put(world.home, files[number], dice.bytes());
    }
    return files;
}

std::vector<Collection> rollCollections(World &world, Dice &dice)
{
    std::vector<Collection> collections;
    QStringList names;
    for (int i = 0; i <= dice.below(4); ++i) {
        collections.push_back({dice.word(), {}});
        names.append(collections.back().name);
        for (int j = 0; j < dice.below(8); ++j)
            collections.back().members.push_back(1 + dice.below(14));
    }
    select(world, dice, names);
    return collections;
}

void select(World &world, Dice &dice, const QStringList &names)
{
    if (!dice.once(4))
        world.profile.emplace();
    for (const QString &name : names) {
        if (world.profile && !dice.once(3))
            world.profile->insert(name);
        if (!dice.once(3))
            world.preferred.insert(name);
    }
}

std::vector<Wish> drop(World &world, Dice &dice, const QString &dropbox,
                       const std::vector<const char *> &names)
{
    std::vector<Wish> dropped;
    for (const char *name : names) {
        if (dice.once(2))
            continue;
        const QString place = QString::fromUtf8(name);
        const QString source = world.documents + u"/Dropboxes/%1/"_s.arg(dropbox) + place;
        put(world.home, source, dice.bytes());
        if (world.setting("syncDropboxes") != 0)
            dropped.push_back({source, place});
    }
    return dropped;
}

QString cleanName(QString text)
{
    for (const char *c = ":/?<>|*\\"; *c; ++c)
        text.replace(QLatin1Char(*c), u'_');
    text.replace(u'"', u'\'');
    if (text.endsWith(u'.'))
        text[text.size() - 1] = u'_';
    return text.normalized(QString::NormalizationForm_D).trimmed();
}

QString asComponent(const QString &name)
{
    return name.isEmpty() || name == u"." || name == u".." ? u"_"_s : name;
}

QString extensionOf(const QString &path)
{
    const QString name = path.section(u'/', -1);
    return name.contains(u'.') ? name.section(u'.', -1) : QString();
}

bool hasExtension(const QString &path, const std::vector<const char *> &extensions)
{
    return std::find(extensions.begin(), extensions.end(),
                     extensionOf(path).toUpper().toStdString()) != extensions.end();
}

} // namespace model
