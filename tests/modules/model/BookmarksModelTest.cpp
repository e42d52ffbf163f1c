#include "modules/bookmarks/CVSyncBookmarks.h"
#include "modules/model/Model.h"
#include "platform/lists/PropertyList.h"

#include <gtest/gtest.h>

using namespace model;

namespace {

struct Leaf
{
    QString title, address;
};

struct Folder
{
    QString title;
    std::vector<Leaf> leaves; // that are written when it is selected
};

using Folders = std::vector<Folder>;

/// The folder of that title anew and last: an earlier one's leaves are lost.
void open(Folders &folders, const QString &title)
{
    std::erase_if(folders, [&title](const Folder &folder) { return folder.title == title; });
    folders.push_back({title, {}});
}

// --- Property lists

enum class Type { Leaf, Folder, Other };

struct Node
{
    Type type;
    Leaf leaf; // a folder has its title
    std::vector<Node> children;
};

std::vector<Node> rollNodes(Dice &dice, int depth)
{
    static const Type types[] = {Type::Leaf, Type::Leaf, Type::Folder, Type::Folder, Type::Other};
    std::vector<Node> nodes;
    for (int i = dice.below(6); i > 0; --i)
        nodes.push_back({dice.of(types),
                         {dice.word(), QStringLiteral("http://%1/?a&b").arg(dice.below(99))},
                         depth > 0 ? rollNodes(dice, depth - 1) : std::vector<Node>()});
    return nodes;
}

QVariantList toList(const std::vector<Node> &nodes, bool isSafari)
{
    static const char *const types[] = {"WebBookmarkTypeLeaf", "WebBookmarkTypeList", "Other"};
    QVariantList list;
    for (const auto &[type, leaf, children] : nodes) {
        QVariantMap entry{{QStringLiteral("Children"), toList(children, isSafari)}};
        const QVariantMap names{{QStringLiteral("title"), leaf.title}};
        if (isSafari)
            entry[QStringLiteral("WebBookmarkType")] =
                QString::fromLatin1(types[static_cast<int>(type)]);
        if (isSafari && type == Type::Leaf)
            entry[QStringLiteral("URIDictionary")] = names;
        else
            entry[QStringLiteral("Title")] = leaf.title;
        if (type == Type::Leaf)
            entry[isSafari ? QStringLiteral("URLString") : QStringLiteral("URL")] = leaf.address;
        if (type == Type::Folder)
            entry[QStringLiteral("FolderType")] = 2;
        list.append(entry);
    }
    return list;
}

/// What lies in a top-level folder itself or in a folder there.
std::vector<Leaf> leavesOf(const Node &top)
{
    std::vector<Leaf> leaves;
    for (const Node &child : top.children) {
        if (child.type == Type::Leaf)
            leaves.push_back(child.leaf);
        for (const Node &inner : child.children) {
            if (child.type == Type::Folder && inner.type == Type::Leaf)
                leaves.push_back(inner.leaf);
        }
    }
    return leaves;
}

Folders foldersOf(const std::vector<Node> &nodes, bool isSafari)
{
    Folders folders;
    for (const Node &top : nodes) {
        if (isSafari && top.type != Type::Folder)
            continue;
        if (!isSafari) // whose folders of one title stay apart
            open(folders, top.leaf.title);
        else
            folders.push_back({top.leaf.title, {}});
        folders.back().leaves = leavesOf(top);
    }
    return folders;
}

// --- Lines of HTML

/// Writes what the tree holds as a browser does, each title as `written` has it, and opens and
/// fills the folders as the reader of such lines must.
struct Pages
{
    Dice &dice;
    bool isFirefox;
    QString text;
    Folders folders;

    QString written(QString title)
    {
        title = title.toHtmlEscaped().replace(u'é', QStringLiteral("&eacute;"));
        if (dice.once(2))
            title.replace(u' ', QStringLiteral("&nbsp;")).replace(u'B', QStringLiteral("&#66;"));
        return title;
    }
    void add(const std::vector<Node> &nodes, int depth)
    {
        for (const auto &[type, leaf, children] : nodes) {
            const bool isRead = !dice.once(12); // else the line ends as on another system
            if (type == Type::Folder)
                addFolder(leaf.title, depth, isRead);
            else if (type == Type::Leaf)
                addLeaf(leaf, depth, isRead);
            text += isRead ? QStringLiteral("\n") : QStringLiteral("\r\n");
            add(children, depth + 1);
        }
    }
    void addFolder(const QString &title, int depth, bool isRead)
    {
        text += isFirefox ? QString(4 * depth, u' ') +
                                QStringLiteral("<DT><H3 ADD_DATE=\"1\">%1</H3>").arg(written(title))
                          : QStringLiteral("<dt><h3><a bookmarkid=%1>%2</a></h3>")
                                .arg(dice.below(99999))
                                .arg(written(title));
        if (isRead && (!isFirefox || depth == 1))
            open(folders, title);
    }
    void addLeaf(const Leaf &leaf, int depth, bool isRead)
    {
        const QString title = written(leaf.title);
        const QString format = isFirefox ? QString(4 * depth, u' ') +
                                               QStringLiteral("<DT><A HREF=\"%1\" ID=\"1\">%2</A>")
                                         : QStringLiteral("<dt><a href=\"%1\" bookmarkid=8>%2</a>");
        text += format.arg(leaf.address, title);
        if (isRead && !folders.empty())
            folders.back().leaves.push_back({isFirefox ? title : leaf.title, leaf.address});
    }
};

// --- The page

Folders rollFolders(World &world, Dice &dice, SyncHarness &harness)
{
    const QString support = harness.home(QStringLiteral("Library/Application Support/"));
    const QString paths[] = {harness.home(QStringLiteral("Library/Safari/Bookmarks.plist")),
                             support + QStringLiteral("Firefox/Profiles/a b/bookmarks.html"),
                             support + QStringLiteral("OmniWeb 5/Bookmarks.html"),
                             support + QStringLiteral("Camino/bookmarks.plist")};
    Folders folders;
    for (int source = 0; source < 4; ++source) {
        if (dice.once(10))
            continue;
        const auto nodes = rollNodes(dice, 3);
        const bool isList = source == 0 || source == 3;
        Pages pages{dice, source == 1, {}, {}};
        pages.add(nodes, 1);
        const QVariantMap list{{QStringLiteral("Children"), toList(nodes, source == 0)}};
        put(world.home, paths[source], isList ? PropertyList::toXml(list) : pages.text.toUtf8());
        if (world.setting("bookmarkSource") == source)
            folders = isList ? foldersOf(nodes, source == 0) : pages.folders;
    }
    put(world.home, support + QStringLiteral("Firefox/profiles.ini"),
        "[Profile1]\nPath=b\n[Profile0]\nName=a=b\nPath=Profiles/a b\n");
    return folders;
}

QString entry(const Leaf &leaf)
{
    return QStringLiteral("\t<DT><A HREF=\"") + leaf.address +
           QStringLiteral("\" ADD_DATE=\"0\" LAST_VISIT=\"0\" LAST_MODIFIED=\"0\" "
                          "LAST_CHARSET=\"UTF-8\">") +
           leaf.title + QStringLiteral("</A>\n");
}

std::vector<Wish> roll(World &world, Dice &dice, SyncHarness &harness)
{
    const Folders folders = rollFolders(world, dice, harness);
    QStringList names{QStringLiteral("Gone")};
    for (const Folder &folder : folders)
        names.append(folder.title);
    select(world, dice, names);

    QString entries;
    if (world.setting("syncContacts") != 0)
        entries += entry({QStringLiteral("Caravel Contacts"),
                          QStringLiteral("file:///Caravel/Contacts/index.html")});
    for (const Folder &folder : folders) {
        for (const Leaf &leaf : folder.leaves)
            entries += world.selected().contains(folder.title) ? entry(leaf) : QString();
    }
    const QString support = harness.home(QStringLiteral("Library/Application Support/Caravel/"));
    const QString page = support + QStringLiteral("bookmarks.html");
    put(world.home, support + QStringLiteral("log"), "made at the start");
    if (dice.once(2))
        put(world.home, page, "an older one");
    world.made[page] =
        "<!--Ver.01-->\n<!DOCTYPE Bookmark-file-1>\n"
        "<!-- This is an automatically generated file.\n    It will be read and overwritten.\n"
        "    Do Not Edit! -->\n"
        "<META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=UTF-8\">\n"
        "<TITLE>Bookmarks</TITLE>\n<H1>Bookmarks</H1>\n<DL><p>\n" +
        entries.toUtf8() + "</DL><p>";
    if (entries.isEmpty())
        return {};
    return {{page, QStringLiteral("bookmarks.html")}};
}

} // namespace

TEST(Model, AgreesOnBookmarks)
{
    holdAgainstTheRules(
        {.name = QStringLiteral("Bookmarks"),
         .folder = QStringLiteral("PSP/SYSTEM/BROWSER"),
         .clears = false,
         .leastFirmware = 1,
         .catalogue = {CVSyncBookmarks::kind()},
         .settings = {{"bookmarkSource", {0, 1, 2, 3, 4}}, {"syncContacts", {0, 1}}},
         .roll = roll});
}
