#include "app/FrontEndProtocol.h"

#include "app/CaravelHelperController.h"
#include "platform/lists/UserDefaults.h"
#include "util/ByteCount.h"

namespace FrontEndProtocol {

namespace {

using Request = const RemoteRequest &;

struct Argument
{
    const char *type;
    const char *name;
};
using Arguments = std::initializer_list<Argument>;

constexpr Argument sender{"a{sv}", "sender"};
constexpr Argument identifiers{"as", "identifiers"};
constexpr Argument identifier{"s", "identifier"};
constexpr Argument movie{"a{sv}", "movie"};

/// The methods in the order in which they are added.
class Table
{
public:
    /// A question without arguments.
    template <typename Ask>
    void query(const char *name, const char *type, Ask ask)
    {
        add(name, {}, type, [ask](Request) { return QVariant::fromValue(ask()); });
    }

    /// A command that the caller waits for.
    template <typename Perform>
    void command(const char *name, Arguments arguments, Perform perform)
    {
        add(name, arguments, "", [perform](Request request) {
            perform(request);
            return QVariant();
        });
    }

    /// A command that the caller does not wait for.
    template <typename Perform>
    void oneway(const char *name, Arguments arguments, Perform perform)
    {
        command(name, arguments, perform);
        m_methods.back().oneway = true;
    }

    void add(const char *name, Arguments arguments, const char *out,
             std::function<QVariant(Request)> call);

    std::vector<RemoteMethod> take() { return std::move(m_methods); }

private:
    std::vector<RemoteMethod> m_methods;
};

void Table::add(const char *name, Arguments arguments, const char *out,
                std::function<QVariant(Request)> call)
{
    RemoteMethod method;
    method.name = QString::fromLatin1(name);
    for (const Argument &argument : arguments) {
        method.in.append(QString::fromLatin1(argument.type));
        method.inNames.append(QString::fromLatin1(argument.name));
    }
    method.out = QString::fromLatin1(out);
    method.call = std::move(call);
    m_methods.push_back(std::move(method));
}

QString text(Request request)
{
    return request.arguments.first().toString();
}

void addConnection(Table &table, CaravelHelperController &helper)
{
    table.command("setApplication", {{"o", "frontEnd"}}, [&helper](Request request) {
        helper.setApplication(request.caller, text(request));
    });
    table.oneway("applicationWillQuit", {},
                 [&helper](Request request) { helper.applicationWillQuit(request.caller); });
    table.oneway("ejectPSP", {sender}, [&helper](Request) { helper.ejectPSP(); });
    table.oneway("openCaravel", {sender}, [&helper](Request) { helper.openCaravel(); });
    table.oneway("syncNow", {sender},
                 [&helper](Request request) { helper.syncNow(request.arguments.first().toMap()); });
}

void addState(Table &table, CaravelHelperController &helper)
{
    CVSyncManager &manager = helper.syncManager();
    SyncStatus &status = helper.status();
    table.query("log", "s", [&helper] { return helper.logger().log(); });
    table.query("isFirstSync", "b", [&manager] { return manager.isFirstSync(); });
    table.query("pspIsMounted", "b", [&manager] { return manager.pspIsMounted(); });
    table.query("canSync", "b", [&manager] { return manager.canSync(); });
    table.query("isSyncing", "b", [&manager] { return manager.isSyncing(); });
    table.query("canCancelSync", "b", [&manager] { return manager.canCancelSync(); });
    table.query("isIndeterminate", "b", [&manager] { return manager.isIndeterminate(); });
    table.query("syncBytesTotal", "t", [&manager] { return manager.syncBytesTotal(); });
    table.query("syncBytes", "t", [&manager] { return manager.syncBytes(); });
    table.query("statusText", "s", [&status] { return status.statusText(); });
    table.query("statusSubText", "s", [&status] { return status.statusSubText(); });
    table.command("setIsInteractive", {{"b", "interactive"}}, [&status](Request request) {
        status.setIsInteractive(request.arguments.first().toBool());
    });
    table.query("percentConverted", "s", [&helper] { return helper.movies().percentConverted(); });
    table.oneway("changeStartOnLogin", {}, [&helper](Request) { helper.changeStartOnLogin(); });
    table.command("clearLog", {}, [&helper](Request) { helper.logger().clear(); });
}

void addEstimate(Table &table, CVSyncManager &manager)
{
    table.query("syncPercentEstimate", "u", [&manager] { return manager.syncPercentEstimate(); });
    table.query("syncBytesEstimate", "s", [&manager] {
        return FileManagerTools::sizeDescriptionForByteCount(manager.syncBytesEstimate());
    });
    table.oneway("refreshSyncBytesEstimate", {}, [&manager](Request) {
        UserDefaults::standard().synchronize();
        manager.refreshSyncBytesEstimate();
    });
}

void addSelection(Table &table, const char *name, SelectionLists &lists,
                  void (SelectionLists::*select)(const QStringList &) const)
{
    table.oneway(name, {identifiers}, [&lists, select](Request request) {
        (lists.*select)(request.arguments.first().toStringList());
    });
}

void addLists(Table &table, SelectionLists &lists)
{
    table.query("musicItems", "aa{sv}", [&lists] { return lists.musicItems(); });
    addSelection(table, "setSelectedMusicIdentifiers", lists,
                 &SelectionLists::setSelectedMusicIdentifiers);
    table.query("photosItems", "aa{sv}", [&lists] { return lists.photosItems(); });
    addSelection(table, "setSelectedPhotosIdentifiers", lists,
                 &SelectionLists::setSelectedPhotosIdentifiers);
    table.query("bookmarksItems", "aa{sv}", [&lists] { return lists.bookmarksItems(); });
    addSelection(table, "setSelectedBookmarksIdentifiers", lists,
                 &SelectionLists::setSelectedBookmarksIdentifiers);
}

void addMovies(Table &table, MovieQueue &movies, SelectionLists &lists)
{
    table.query("moviesItems", "aa{sv}", [&movies] { return movies.moviesItems(); });
    addSelection(table, "setSelectedMoviesIdentifiers", lists,
                 &SelectionLists::setSelectedMoviesIdentifiers);
    table.query("isConvertingMovie", "b", [&movies] { return movies.isConvertingMovie(); });
    table.command("addMoviesFromArray", {{"as", "paths"}}, [&movies](Request request) {
        movies.addMoviesFromArray(request.arguments.first().toStringList());
    });
    table.command("removeMovieItem", {movie}, [&movies](Request request) {
        movies.removeMovieItem(request.arguments.first().toMap());
    });
    table.command("renameMovieItem", {movie, {"s", "newName"}}, [&movies](Request request) {
        movies.renameMovieItem(request.arguments[0].toMap(), request.arguments[1].toString());
    });
}

void addBackups(Table &table, CaravelHelperController &helper)
{
    SelectionLists &lists = helper.lists();
    table.query("backupItems", "aa{sv}", [&lists] { return lists.backupItems(); });
    addSelection(table, "setSelectedBackupIdentifiers", lists,
                 &SelectionLists::setSelectedBackupIdentifiers);
    table.oneway("logChanged", {{"s", "line"}},
                 [&helper](Request request) { helper.logChanged(text(request)); });
    table.add("backupSubItemsForIdentifier", {identifier}, "aa{sv}", [&lists](Request request) {
        return QVariant(lists.backupSubItemsForIdentifier(text(request)));
    });
    table.command("restoreBackupWithIdentifier", {identifier},
                  [&helper](Request request) { helper.restoreBackup(text(request)); });
    table.command("deleteBackupWithIdentifier", {identifier},
                  [&helper](Request request) { helper.deleteBackup(text(request)); });
}

} // namespace

std::vector<RemoteMethod> methods(CaravelHelperController &controller)
{
    Table table;
    addConnection(table, controller);
    addState(table, controller);
    addEstimate(table, controller.syncManager());
    addLists(table, controller.lists());
    addMovies(table, controller.movies(), controller.lists());
    addBackups(table, controller);
    return table.take();
}

} // namespace FrontEndProtocol
