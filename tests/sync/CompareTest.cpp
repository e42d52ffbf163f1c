// What a run would do, by tables of (what is wanted, the stick, the last index, settings) -> plan.

#include "sync/Compare.h"
#include "support/TestSupport.h"
#include "util/PathComponents.h"

#include <gtest/gtest.h>

namespace {

const QString volume = u"/stick"_s;
const QString root = u"/stick/M"_s; // the kind's folder

/// Places are below the kind's folder, words of this form: "a/x=5" is a file of five bytes, "a/=5"
/// a folder, "a/==5" one that holds the same on both sides, "x@" a link; what is wanted without a
/// size is missing, and "x<._y=5" names the source. The index is null where there is none; of its
/// words those with a "+" are what an interrupted run was to place.
///
/// Settings: "keeps" (clears nothing), "own" (only what is ours), "fat", "caseless", "elsewhere"
/// (takes no space of the stick), "bytes" (the plan's are shown: estimate, queue, clusters of 100),
/// "linked" (the kind's own folder is one).
///
/// In a plan "!" marks a stranger.
struct Case
{
    const char *rule, *wanted, *stick, *index, *plan;
    const char *settings = "";
};

struct Place
{
    explicit Place(const QString &word)
        : path(word.section(u'=', 0, 0).section(u'<', 0, 0))
        , source(u"/home/"_s + (word.contains(u'<') ? word.section(u'=', 0, 0).section(u'<', 1)
                                                    : PathComponents::lastOf(path)))
        , exists(word.contains(u'='))
        , isFolder(path.endsWith(u'/'))
        , isSame(word.contains(u"=="))
        , isLink(path.endsWith(u'@'))
        , size(word.section(u'=', -1).toULongLong())
    {
        if (isFolder || isLink)
            path.chop(1);
    }
    QString path, source;
    bool exists, isFolder, isSame, isLink;
    quint64 size;
};

int add(std::vector<FolderEntry> &entries, const Place &place)
{
    for (size_t i = 0; i < entries.size(); ++i) {
        if (entries[i].path == place.path)
            return static_cast<int>(i);
    }
    const QString above = PathComponents::folderOf(place.path);
    const int parent = above.isEmpty() ? -1 : add(entries, Place(above + u'/'));
    entries.push_back({place.path, place.isFolder, parent, place.isLink, place.size});
    return static_cast<int>(entries.size()) - 1;
}

const FolderEntry *find(const StickFolder &folder, const QString &path, const StickNames &names)
{
    for (const FolderEntry &entry : folder.entries) {
        if (names.key(folder.path + u'/' + entry.path) == names.key(path))
            return &entry;
    }
    return nullptr;
}

std::vector<MeasuredItem> measured(const Case &c, const StickFolder &folder,
                                   const StickNames &names)
{
    std::vector<CVSyncItem> wanted;
    const QStringList words = list(c.wanted);
    for (const QString &word : words) {
        const Place place(word);
        wanted.emplace_back(place.source, names.destination(root + u'/' + place.path), QString());
        wanted.back().size = place.size;
    }
    std::vector<MeasuredItem> items;
    for (const CVSyncItem &item : Compare::fixDuplicateDestinations(wanted, names)) {
        const Place place(words[static_cast<qsizetype>(items.size())]);
        MeasuredItem &last = items.emplace_back(
            MeasuredItem{.item = item, .exists = place.exists, .isFolder = place.isFolder});
        if (const FolderEntry *there = find(folder, item.destination, names)) {
            using Kind = FileStatus::Kind;
            last.destination = {there->isFolder ? Kind::Folder : Kind::File, there->size};
            last.isEqualTree = place.isSame;
        }
        for (QString above = PathComponents::folderOf(item.destination); above.size() > root.size();
             above = PathComponents::folderOf(above)) {
            if (const FolderEntry *there = find(folder, above, names); there && there->isLink)
                last.link = above;
        }
    }
    return items;
}

QString shown(const PlannedItem &planned)
{
    const char *const actions[] = {"copy", "replace", "inPlace", "leaveOut"};
    const char *const reasons[] = {"",           " missing",  " link",
                                   " too large", " not kept", " companion"};
    return QLatin1String(actions[static_cast<int>(planned.action)]) +
           QLatin1String(reasons[static_cast<int>(planned.reason)]) +
           (planned.isStranger ? u"! "_s : u" "_s) + planned.item.destination.mid(root.size() + 1);
}

std::string planOf(const Case &c)
{
    const QStringList settings = list(c.settings);
    const bool isFat = settings.contains(u"fat");
    const StickNames names(volume, {isFat, !settings.contains(u"caseless"), isFat ? 1000U : 9999U});
    StickFolder folder{root, settings.contains(u"own"), {}, {}};
    for (const QString &word : list(c.stick))
        add(folder.entries, Place(word));
    KindInput input;
    input.volume = volume;
    input.clusterSize = 100;
    input.items = measured(c, folder, names);
    input.shouldClearUnsyncedFiles = !settings.contains(u"keeps");
    input.takesStickSpace = !settings.contains(u"elsewhere");
    if (settings.contains(u"linked"))
        folder.link = root;
    input.folders = {folder};
    if (c.index) {
        input.lastIndex.emplace();
        for (const QString &word : list(c.index))
            (word.startsWith(u'+') ? input.unfinished : *input.lastIndex)
                .insert(names.key(u"/M/"_s + QString(word).remove(u'+')));
    }
    input.root = root;
    input.shownLevels = 1;
    QStringList lines;
    const KindPlan plan = Compare::plan(input, names);
    for (const PlannedItem &planned : plan.items)
        lines.append(shown(planned));
    for (const PlannedRemoval &removal : plan.removals)
        lines.append((removal.isEmptiedFolder  ? u"rmdir"_s
                      : removal.isUnwantedFile ? u"remove"_s
                                               : u"tidy"_s) +
                     (removal.isStranger ? u"! "_s : u" "_s) + removal.path.mid(root.size() + 1));
    for (const FileError &error : plan.errors)
        lines.append(u"link at "_s + error.path);
    if (plan.hiddenFiles > 0)
        lines.append(u"%1 hidden"_s.arg(plan.hiddenFiles));
    SyncPlan all;
    all.kinds.push_back(plan);
    if (settings.contains(u"bytes"))
        lines.append(u"%1 %2 %3"_s.arg(all.syncBytesEstimate())
                         .arg(all.syncBytesTotal())
                         .arg(all.clusterBytes()));
    return joined(lines, u", ");
}

} // namespace

TEST(Compare, PlansByTheRules)
{
    const Case cases[] = {
        {"new", "A/x=5 A/y=0", "", nullptr, "copy A/x, copy A/y"},
        {"of one size", "x=5", "x=5", "", "inPlace x"},
        {"of another size, placed by us", "x=5", "x=6", "x", "replace x"},
        {"of another size, not ours", "x=5", "x=6", "", "replace! x"},
        {"nothing is known to be ours", "x=5", "x=6 y=1", nullptr, "replace! x, remove! y"},
        {"a missing source keeps what is there", "x", "x=5", "x", "leaveOut missing x"},
        {"a missing source's bytes don't count", "x y=7", "", "",
         "leaveOut missing x, copy y, 7 7 100", "bytes"},
        {"bytes", "x=100 y=101 z=5", "z=5 x=3", "x", "replace x, copy y, inPlace z, 206 201 300",
         "bytes"},
        {"an empty file takes no cluster", "x=0", "", "", "copy x, 0 0 0", "bytes"},
        {"on the computer", "x=101", "", "", "copy x, 101 101 0", "bytes elsewhere"},
        {"other systems' companions", "x<._x=5 y<._y=5 z<._z=5", "y=6 z=5", "y z",
         "copy companion x, replace companion y, inPlace z, 15 10 0", "bytes"},
        {"a folder with the same", "s/==0", "s/f=3", "", "inPlace s, remove! s/f, rmdir s"},
        {"a folder with others", "s/=0", "s/f=3", "s/f", "replace! s"},
        {"a file for a folder", "s=5", "s/f=5 s/g/h=1 t=1", "s/f s", "replace s, remove! t"},
        {"a folder for a file", "s/=5", "s=5", "s", "replace s"},
        {"a link lies there", "x=5", "x@=4", "", "replace! x"},
        {"a link on the way", "A/x=5 A/y=5 B/z=5", "A@", "",
         "leaveOut link A/x, leaveOut link A/y, copy B/z, remove! A, link at /stick/M/A"},
        {"a linked folder of the kind", "", "x=5", "x", "link at /stick/M", "linked"},
        {"larger than the stick takes", "x=1001 y=1000 z=1001", "z=5", "z",
         "leaveOut too large x, copy y, leaveOut too large z, 3002 1000 1000", "bytes fat"},
        {"deeper than the PSP shows", "A/x=1 A/B/y=1 A/B/z=1 A/B/m", "A/B/z=1", "",
         "copy A/x, copy A/B/y, inPlace A/B/z, leaveOut missing A/B/m, 2 hidden"},
        {"in what is replaced before", "s=5 s/f=6", "s/f=6", "", "replace! s, copy s/f"},

        {"unwanted", "x=1", "B/C/old=3 x=1 z=1", "z",
         "inPlace x, remove z, remove! B/C/old, "
         "rmdir B/C, rmdir B"},
        {"a kind that clears nothing", "", "A/old=3 E/ x=1", "x", "rmdir E", "keeps"},
        {"only ours", "w=1", "A/own=1 A/other=1 B/own=2", "A/own B/own w",
         "copy w, remove B/own, rmdir B, remove A/own", "own"},
        {"ours by an interrupted run", "w=1", "x=1 y=1 w=2", "x +y +w",
         "replace w, remove y, remove x", "own"},
        {"all counts as ours without an index", "", "A/x=1", nullptr, "remove! A/x, rmdir A",
         "own"},
        {"an empty index makes none ours", "", "A/x=1", "", "", "own"},
        {"clutter", "", "D/.DS_Store=1 .DS_Store=9 x=1", "",
         "tidy .DS_Store, tidy D/.DS_Store, "
         "rmdir D",
         "keeps"},
        {"clutter of a folder's shape", "", ".DS_Store/x=1", "x", "tidy .DS_Store", "keeps"},
        {"empty folders", "", "E/F/G/ H/", "", "rmdir H, rmdir E/F/G, rmdir E/F, rmdir E", "own"},
        {"our own folder", "", ".caravel/x=1 .caravel2/", "", "rmdir .caravel2"},

        {"numbered apart", "S.mp3<1=1 S.mp3<2=2 b/S.mp3=3 S.mp3<3=4", "S.1.mp3=2", "",
         "copy S.mp3, inPlace S.1.mp3, copy b/S.mp3, copy S.2.mp3"},
        {"cases are apart", "A=1 a=1", "a=1", "", "copy A, inPlace a"},
        {"or not", "A=1 a=1", "a=1 Old=1", "old", "inPlace A, copy a.1, remove Old",
         "caseless own"},
        {"a number is free", "A=1 a=1 A.1=1", "", "", "copy A, copy a.2, copy A.1", "caseless"},
        {"or taken", "A=1 A=1 A.1=1", "", "", "copy A, copy A.1, copy A.1"},
        {"no folder of another case is left empty", "mix/x=1", "MIX/x=1", "", "inPlace mix/x",
         "caseless"},
        {"replaced in another case", "x=1", "X=2", "X", "replace x", "caseless"},
        {"as FAT has them", "R.E.M./x?=5 a:b=1", "R.E.M_/x_=5", "", "inPlace R.E.M_/x_, copy a_b",
         "fat"},
        {"and before", "R.E.M./x=5", "R.E.M/x=5", "R.E.M./x",
         "copy R.E.M_/x, remove R.E.M/x, rmdir R.E.M", "fat own"},
        {"one on FAT", "a:=1 a?=2 a_=3", "", "", "copy a_, copy a_.1, copy a_.2", "fat"},
        {"elsewhere nothing changes", "R.E.M./x?=5", "R.E.M./x?=5", "", "inPlace R.E.M./x?"},
    };
    for (const Case &c : cases)
        EXPECT_EQ(planOf(c), c.plan) << c.rule;
}

TEST(Compare, NeverCleansOutsideTheStick)
{
    for (const QString &folder : {u"/home/M"_s, volume + u"-2"_s, u"/"_s, u"/Volumes"_s}) {
        KindInput input;
        input.volume = volume;
        input.shouldClearUnsyncedFiles = true;
        input.folders = {{folder, false, {{u"mine"_s}}, {}}};
        EXPECT_TRUE(Compare::plan(input, StickNames(volume, {})).removals.empty());
    }
}

TEST(StickNames, HoldsWhatFatCanAndTellsWhatItTakesForOne)
{
    const struct
    {
        const char *name, *held, *key;
    } cases[] = {
        {"R.E.M.", "R.E.M_", "r.e.m"},
        {"R.E.M", "R.E.M", "r.e.m"},
        {"a:b?", "a_b_", "a:b?"},
        {"\"*:<>?\\|\x1f", "_________", "\"*:<>?\\|\x1f"},
        {"end  ", "end", "end  "},
        {"end. .", "end. _", "end. "},
        {"end. ", "end_", "end. "},
        {"...", "___", ""},
        {"  ", "_", "  "},
        {".<x", "__x", ".<x"}, // no companion of x
        {" .x", " .x", " .x"},
        {"A./B../c", "A_/B__/c", "a/b/c"},
        {"A//b/", "A/b", "a//b/"},
        {"CAFÉ", "CAFÉ", "café"},
        {"Straße", "Straße", "straße"},
    };
    const StickNames fat(volume, {.isFatLike = true, .tellsCaseApart = false});
    const StickNames caseless(volume, {.isFatLike = false, .tellsCaseApart = false});
    const StickNames other(volume, {});
    const StickNames ntfs(volume, {.isFatLike = true, .refusesDeviceNames = true});
    EXPECT_EQ(ntfs.destination(volume + u"/aux/Com1.x/control"_s),
              volume + u"/aux_/Com1_.x/control"_s);
    for (const auto &c : cases) {
        const QString path = volume + u'/' + QString::fromUtf8(c.name);
        EXPECT_EQ(fat.destination(path), volume + u'/' + QString::fromUtf8(c.held)) << c.name;
        EXPECT_EQ(fat.key(path), volume + u'/' + QString::fromUtf8(c.key)) << c.name;
        EXPECT_EQ(caseless.key(path), path.toLower()) << c.name;
        EXPECT_EQ(caseless.destination(path), path);
        EXPECT_EQ(other.key(path), path);
        EXPECT_EQ(fat.destination(u"/home/a:b."_s), u"/home/a:b."_s) << "not on the stick";
    }
}
