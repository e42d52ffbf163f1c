#pragma once

#include "support/SyncHarness.h"

#include <functional>
#include <map>
#include <optional>
#include <random>
#include <set>
#include <utility>
#include <vector>

/// What must lie on the stick after a run, worked out a second time, slowly and from the rules
/// alone, and held against the program over random homes, sticks, settings and old indexes.
///
/// CARAVEL_MODEL_ROUNDS is the number of rounds, 300 unless it says otherwise.
namespace model {

using Files = std::map<QString, QByteArray>; ///< contents by path

class Dice
{
public:
    explicit Dice(unsigned seed)
        : m_random(seed)
    {
    }
    int below(int number) { return static_cast<int>(m_random() % static_cast<unsigned>(number)); }
    bool once(int in) { return below(in) == 0; }
    template <typename Table>
    auto of(const Table &table)
    {
        return *(std::begin(table) + below(static_cast<int>(std::size(table))));
    }
    QString word();
    std::optional<QString> maybeWord() { return once(6) ? std::nullopt : std::optional(word()); }
    QByteArray bytes() { return QByteArray(1 + below(4), static_cast<char>('a' + below(26))); }

private:
    std::mt19937 m_random;
};

/// A file that belongs on the stick.
struct Wish
{
    QString source;
    QString place; // below the module's folder, as its kind says it; later below the volume
};

struct World
{
    QString documents; // the folder of the dropboxes and of the movies
    std::map<QString, int> settings;
    Files home; // by full path
    Files made; // what the run itself writes there
    Files stick;
    std::optional<std::set<QString>> index; // "/PSP/MUSIC/…"
    std::optional<std::set<QString>> profile;
    std::set<QString> preferred;
    int processed = 0; // items of the last run

    int setting(const char *name) const { return settings.at(QString::fromLatin1(name)); }
    /// The selection that holds.
    std::set<QString> selected() const;
};

/// A playlist or an album.
struct Collection
{
    QString name;
    QList<int> members; // by number, also of none
};

/// One module, as the rules see it.
struct Kind
{
    QString name;   // of its preferences and its index
    QString folder; // on the stick
    bool clears = true;
    int leastFirmware = 0; // with which it takes part
    ModuleCatalogue catalogue;
    std::vector<std::pair<const char *, std::vector<int>>> settings;
    /// Fills the home and says what belongs on the stick, duplicates and all.
    std::function<std::vector<Wish>(World &, Dice &, SyncHarness &)> roll;
};

/// Builds, runs, compares, and runs again, round for round.
void holdAgainstTheRules(const Kind &kind);

/// Puts a file where no other file or folder is.
void put(Files &files, const QString &path, const QByteArray &contents);
/// Files named by numbers from 1 on, not all of which exist.
std::map<int, QString> rollFiles(World &world, Dice &dice, const QString &folder,
                                 const std::vector<const char *> &extensions);
/// Collections of which some are selected.
std::vector<Collection> rollCollections(World &world, Dice &dice);
/// Selects some of the names, not the same for the stick as for all sticks.
void select(World &world, Dice &dice, const QStringList &names);
/// Drops some of the files and returns those that take part, in the order given, each wished for
/// under its path in the dropbox.
std::vector<Wish> drop(World &world, Dice &dice, const QString &dropbox,
                       const std::vector<const char *> &names);

QString cleanName(QString text);
/// What no folder or file can be called becomes "_".
QString asComponent(const QString &name);
QString extensionOf(const QString &path);
/// Whether the extension is one of these, which are in capitals.
bool hasExtension(const QString &path, const std::vector<const char *> &extensions);

} // namespace model
