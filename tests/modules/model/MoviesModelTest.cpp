#include "modules/model/Model.h"
#include "modules/movies/CVSyncMovies.h"

#include <gtest/gtest.h>

using namespace model;

namespace {

/// The titles in each movie folder, in byte order.
using Library = std::map<QString, std::set<QByteArray>>;

Library rollLibrary(World &world, Dice &dice, const QString &root)
{
    Library library;
    for (const char *name : {"M4V00001", "M4V00002", "M4V00007", "M4V99999", "Own"}) {
        const QString id = QString::fromLatin1(name);
        for (int i = dice.below(3); i > 0; --i) {
            const QString title = dice.word().replace(u'/', u'-');
            const QString folder = root + u'/' + id + u'/' + title + u'/';
            library[id].insert(title.toUtf8());
            put(world.home, folder + QStringLiteral("note"), "note"); // where nothing else is
            for (const char *extension : {".MP4", ".THM"}) {
                if (!dice.once(6))
                    put(world.home, folder + id + QString::fromLatin1(extension), dice.bytes());
            }
        }
    }
    put(world.home, root + QStringLiteral("/.DS_Store"), "no movie");
    return library;
}

std::vector<Wish> roll(World &world, Dice &dice, SyncHarness &)
{
    const QString root = world.documents + QStringLiteral("/Movies");
    const Library library = rollLibrary(world, dice, root);
    QStringList identifiers{QStringLiteral("M4V00044/Gone")};
    for (const auto &[id, titles] : library) {
        for (const QByteArray &title : titles)
            identifiers.append(id + u'/' + QString::fromUtf8(title));
    }
    select(world, dice, identifiers);

    std::vector<Wish> wishes;
    for (const auto &[id, titles] : library) {
        const QString identifier = id + u'/' + QString::fromUtf8(*titles.rbegin());
        if (!world.selected().contains(identifier))
            continue;
        for (const QString &file : {id + QStringLiteral(".MP4"), id + QStringLiteral(".THM")})
            wishes.push_back(
                {root + u'/' + identifier + u'/' + file, QStringLiteral("100MNV01/") + file});
    }
    for (const auto &[source, name] :
         drop(world, dice, QStringLiteral("Movies"),
              {"._MAQ00009.MP4", "Clip.mp4", "MAQ00005.Thm", "MAQ00005.mp4", "Straße.MP4", "a.avi",
               "clip.1.mp4", "clip.mp4", "dir.mp4/in.mp4", "inner/x.mp4", "maq00005.mp4", "mp4"})) {
        if (!name.contains(u'/') && hasExtension(name, {"MP4", "THM"}))
            wishes.push_back({source, (name.startsWith(u"MAQ") ? QStringLiteral("100ANV01/")
                                                               : QStringLiteral("101MNV01/")) +
                                          name.toUpper()});
    }
    return wishes;
}

} // namespace

TEST(Model, AgreesOnMovies)
{
    holdAgainstTheRules({.name = QStringLiteral("Movies"),
                         .folder = QStringLiteral("MP_ROOT"),
                         .catalogue = {CVSyncMovies::kind()},
                         .settings = {},
                         .roll = roll});
}
