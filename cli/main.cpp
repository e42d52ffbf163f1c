#include "cli/ListCommands.h"
#include "cli/MovieCommands.h"
#include "cli/Output.h"
#include "cli/PlanCommand.h"
#include "cli/PrefsCommand.h"
#include "cli/ReportCommand.h"
#include "cli/SaveCommands.h"
#include "cli/SourcesCommand.h"
#include "cli/StatusCommands.h"
#include "cli/SyncCommand.h"
#include "cli/WatchCommand.h"
#include "cli/WindowStart.h"
#include "platform/lists/Bundle.h"

#include <CLI/CLI.hpp>

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace {

// The words that were given, last first. The parser would take one in brackets for a list of its
// own; what no word can end in keeps it from that.
std::vector<std::string> guardedWords(int argc, char **argv)
{
    std::vector<std::string> words(std::reverse_iterator(argv + argc),
                                   std::reverse_iterator(argv + std::min(argc, 1)));
    for (std::string &word : words) {
        if (word.starts_with('[') && word.ends_with(']'))
            word.push_back('\0');
    }
    return words;
}

QString toText(const std::string &guarded)
{
    return QString::fromLocal8Bit(guarded.c_str());
}

QStringList toTexts(const std::vector<std::string> &words)
{
    QStringList texts;
    for (const std::string &word : words)
        texts.append(toText(word));
    return texts;
}

// Where the parser leaves what was given. One command is chosen, so the options share their places.
struct Arguments
{
    bool json = false;
    bool noWait = false;
    bool dryRun = false;
    bool follow = false;
    bool clear = false;
    bool add = false;
    bool remove = false;
    bool all = false;
    bool none = false;
    bool yes = false;
    std::string kind;
    std::string id;
    std::string title;
    std::vector<std::string> words;
};

class CommandLine
{
public:
    CommandLine();
    int run(int argc, char **argv);

private:
    using Command = std::function<ExitStatus()>;

    CLI::App *add(CLI::App &parent, const std::string &name, const std::string &description,
                  Command command);
    CLI::App *addReading(const std::string &name, const std::string &description, Command command);
    void addLog();
    void addSync();
    void addPlan();
    void addList();
    void addSelect();
    void addMovies();
    void addSaves();
    void addPrefs();
    ExitStatus select() const;

    CLI::App m_app{"Keeps a PSP's Memory Stick up to date with your media.", "caravel"};
    Arguments m_arguments;
    Command m_chosen;
};

CommandLine::CommandLine()
{
    m_app.require_subcommand(0, 1);
    m_app.set_version_flag("--version", [] {
        return Bundle::main().versionLine(QStringLiteral("caravel")).toStdString();
    });
    addReading("status", "Show the PSP, the sync and the selection's size",
               [this] { return runStatus(m_arguments.json); });
    addReading("watch", "Show the state and every change of it until Ctrl-C",
               [this] { return runWatch(m_arguments.json); });
    addLog();
    addSync();
    addPlan();
    addReading("report", "Show how the last sync ended, what it left out and what it kept",
               [this] { return runReport(m_arguments.json); });
    add(m_app, "cancel", "Cancel the running sync", [] { return runCancel(); });
    add(m_app, "eject", "Eject the PSP", [] { return runEject(); });
    addReading("estimate", "Estimate how much of the PSP the selection takes",
               [this] { return runEstimate(m_arguments.json); });
    addReading("sources", "List the media found on this computer, with a mark for what is chosen",
               [this] { return runSources(m_arguments.json); });
    addList();
    addSelect();
    addMovies();
    addSaves();
    addPrefs();
}

CLI::App *CommandLine::add(CLI::App &parent, const std::string &name,
                           const std::string &description, Command command)
{
    CLI::App *subcommand = parent.add_subcommand(name, description);
    // A command's own callback comes after those of the commands below it.
    subcommand->callback([this, subcommand, command = std::move(command)] {
        if (subcommand->get_subcommands().empty())
            m_chosen = command;
    });
    return subcommand;
}

CLI::App *CommandLine::addReading(const std::string &name, const std::string &description,
                                  Command command)
{
    CLI::App *subcommand = add(m_app, name, description, std::move(command));
    subcommand->add_flag("--json", m_arguments.json, "Print JSON");
    return subcommand;
}

void CommandLine::addLog()
{
    CLI::App *log = addReading("log", "Show the helper's log", [this] {
        const LogMode shown = m_arguments.follow ? LogMode::Follow : LogMode::Show;
        return runLog(m_arguments.clear ? LogMode::Clear : shown, m_arguments.json);
    });
    CLI::Option *follow =
        log->add_flag("--follow", m_arguments.follow, "Go on with new lines until Ctrl-C");
    log->add_flag("--clear", m_arguments.clear, "Empty the log instead")->excludes(follow);
}

void CommandLine::addSync()
{
    CLI::App *sync = add(m_app, "sync", "Sync now; Ctrl-C cancels the sync", [this] {
        return m_arguments.dryRun ? runPlan({}, {}) : runSync(!m_arguments.noWait);
    });
    CLI::Option *noWait =
        sync->add_flag("--no-wait", m_arguments.noWait, "Return once the sync was asked for");
    sync->add_flag("--dry-run", m_arguments.dryRun, "Only say what it would do, as plan does")
        ->excludes(noWait);
}

void CommandLine::addPlan()
{
    CLI::App *plan =
        addReading("plan", "Show what a sync would do, and each file that would go", [this] {
            return runPlan(QString::fromStdString(m_arguments.kind),
                           {.all = m_arguments.all, .json = m_arguments.json});
        });
    std::vector<std::string> names;
    for (const QString &name : plannedKinds())
        names.push_back(name.toStdString());
    plan->add_option("KIND", m_arguments.kind, "Only that kind of media")
        ->check(CLI::IsMember(names));
    plan->add_flag("--all", m_arguments.all, "List every file, not only those that would go");
}

void addKind(CLI::App &subcommand, std::string &kind)
{
    std::vector<std::string> names;
    for (const QString &name : listKinds())
        names.push_back(name.toStdString());
    subcommand.add_option("KIND", kind, "Kind of media")->required()->check(CLI::IsMember(names));
}

void CommandLine::addList()
{
    CLI::App *list =
        addReading("list", "List what can be selected, with a mark for what is", [this] {
            return runList(QString::fromStdString(m_arguments.kind), m_arguments.json);
        });
    addKind(*list, m_arguments.kind);
}

void CommandLine::addSelect()
{
    CLI::App *select =
        add(m_app, "select", "Select what is synced: the NAMEs, or change the selection by them",
            [this] { return this->select(); });
    addKind(*select, m_arguments.kind);
    CLI::Option *names = select->add_option("NAME", m_arguments.words, "Names or identifiers");
    CLI::Option *add = select->add_flag("--add", m_arguments.add, "Select the NAMEs too");
    CLI::Option *remove =
        select->add_flag("--remove", m_arguments.remove, "Deselect the NAMEs")->excludes(add);
    CLI::Option *all = select->add_flag("--all", m_arguments.all, "Select everything");
    CLI::Option *none = select->add_flag("--none", m_arguments.none, "Select nothing");
    all->excludes(add)->excludes(remove)->excludes(names);
    none->excludes(add)->excludes(remove)->excludes(names)->excludes(all);
}

void CommandLine::addMovies()
{
    CLI::App &movies = *m_app.add_subcommand("movies", "Add, remove and rename movies");
    movies.require_subcommand(1);
    add(movies, "add", "Convert movies for the PSP and select them",
        [this] { return runAddMovies(toTexts(m_arguments.words)); })
        ->add_option("FILE", m_arguments.words, "Movies")
        ->required();
    CLI::App *remove = add(movies, "remove", "Remove a movie, or take it out of the queue",
                           [this] { return runRemoveMovie(toText(m_arguments.id)); });
    CLI::App *rename = add(movies, "rename", "Give a movie another title", [this] {
        return runRenameMovie(toText(m_arguments.id), toText(m_arguments.title));
    });
    for (CLI::App *command : {remove, rename})
        command->add_option("ID", m_arguments.id, "Identifier, or a name that only one movie has")
            ->required();
    rename->add_option("TITLE", m_arguments.title, "The new title")->required();
}

void CommandLine::addSaves()
{
    CLI::App *saves =
        addReading("saves", "Show the backups of a game save; restore or delete them", [this] {
            if (m_arguments.id.empty()) {
                Output::error(QStringLiteral("name a game save, see caravel list saves"));
                return BadUsage;
            }
            return runSaves(toText(m_arguments.id), m_arguments.json);
        });
    saves->add_option("SAVE", m_arguments.id, "Identifier, or a name that only one save has");
    saves->require_subcommand(0, 1);
    CLI::App *restore =
        add(*saves, "restore", "Put a backup back on the PSP; what is there is kept as a backup",
            [this] { return runRestoreSave(toText(m_arguments.id)); });
    restore->add_option("ID", m_arguments.id, "Identifier of the backup")->required();
    CLI::App *remove =
        add(*saves, "delete", "Move a backup, or all of a save, to the Trash",
            [this] { return runDeleteSave(toText(m_arguments.id), m_arguments.yes); });
    remove->add_option("ID", m_arguments.id, "Identifier of the backup or of the save")->required();
    remove->add_flag("--yes", m_arguments.yes, "Don't ask");
}

void CommandLine::addPrefs()
{
    CLI::App *prefs =
        addReading("prefs", "Show the preferences, or one of them, or set it",
                   [this] { return runPrefs(toTexts(m_arguments.words), m_arguments.json); });
    prefs->add_option("KEY VALUE", m_arguments.words, "Preference, and the value to set")
        ->expected(0, 2)
        ->type_name("");
}

ExitStatus CommandLine::select() const
{
    SelectMode mode = SelectMode::Replace;
    if (m_arguments.add)
        mode = SelectMode::Add;
    else if (m_arguments.remove)
        mode = SelectMode::Remove;
    else if (m_arguments.all)
        mode = SelectMode::All;
    else if (m_arguments.none)
        mode = SelectMode::None;
    const bool needsNames = mode != SelectMode::All && mode != SelectMode::None;
    if (needsNames && m_arguments.words.empty()) {
        Output::error(QStringLiteral("name what to select, or say --all or --none"));
        return BadUsage;
    }
    return runSelect(QString::fromStdString(m_arguments.kind), mode, toTexts(m_arguments.words));
}

int CommandLine::run(int argc, char **argv)
{
    try {
        m_app.parse(guardedWords(argc, argv));
    } catch (const CLI::ParseError &error) {
        return m_app.exit(error) == 0 ? Done : BadUsage;
    }
    if (m_chosen)
        return m_chosen();
    if (WindowStart::isNeeded())
        WindowStart::becomeWindow();
    Output::printError(QString::fromStdString(m_app.help()));
    return BadUsage;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    return CommandLine().run(argc, argv);
}
