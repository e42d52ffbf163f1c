#include "app/FrontEndProtocol.h"

#include "app/CaravelHelperController.h"
#include "platform/UserDefaults.h"
#include "util/FileManagerTools.h"

namespace FrontEndProtocol {

namespace {

using Request = const RemoteRequest &;

// A question without arguments.
template <typename Ask>
RemoteMethod query(const char *name, const char *type, Ask ask)
{
    return {QString::fromLatin1(name), {}, {}, QString::fromLatin1(type), false, [ask](Request) {
                return QVariant::fromValue(ask());
            }};
}

struct Argument
{
    const char *type = nullptr;
    const char *name = nullptr;
};

enum class Mode { Waits, Oneway };

// A command with at most one argument.
template <typename Perform>
RemoteMethod command(const char *name, Argument argument, Mode mode, Perform perform)
{
    RemoteMethod method;
    method.name = QString::fromLatin1(name);
    if (argument.type) {
        method.in = {QString::fromLatin1(argument.type)};
        method.inNames = {QString::fromLatin1(argument.name)};
    }
    method.oneway = mode == Mode::Oneway;
    method.call = [perform](Request request) {
        perform(request);
        return QVariant();
    };
    return method;
}

void addConnection(std::vector<RemoteMethod> &methods, CaravelHelperController &helper)
{
    constexpr Argument sender{"a{sv}", "sender"};
    methods.push_back(
        command("setApplication", {"o", "frontEnd"}, Mode::Waits, [&helper](Request request) {
            helper.setApplication(request.caller, request.arguments.first().toString());
        }));
    methods.push_back(command("applicationWillQuit", {}, Mode::Oneway, [&helper](Request request) {
        helper.applicationWillQuit(request.caller);
    }));
    methods.push_back(
        command("ejectPSP", sender, Mode::Oneway, [&helper](Request) { helper.ejectPSP(); }));
    methods.push_back(
        command("openCaravel", sender, Mode::Oneway, [&helper](Request) { helper.openCaravel(); }));
    methods.push_back(command("syncNow", sender, Mode::Oneway, [&helper](Request request) {
        helper.syncNow(request.arguments.first().toMap());
    }));
}

void addState(std::vector<RemoteMethod> &methods, CaravelHelperController &helper)
{
    CVSyncManager &manager = helper.syncManager();
    SyncStatus &status = helper.status();
    methods.push_back(query("log", "s", [&helper] { return helper.logger().log(); }));
    methods.push_back(query("isFirstSync", "b", [&manager] { return manager.isFirstSync(); }));
    methods.push_back(query("pspIsMounted", "b", [&manager] { return manager.pspIsMounted(); }));
    methods.push_back(query("canSync", "b", [&manager] { return manager.canSync(); }));
    methods.push_back(query("isSyncing", "b", [&manager] { return manager.isSyncing(); }));
    methods.push_back(query("canCancelSync", "b", [&manager] { return manager.canCancelSync(); }));
    methods.push_back(
        query("isIndeterminate", "b", [&manager] { return manager.isIndeterminate(); }));
    methods.push_back(
        query("syncBytesTotal", "t", [&manager] { return manager.syncBytesTotal(); }));
    methods.push_back(query("syncBytes", "t", [&manager] { return manager.syncBytes(); }));
    methods.push_back(query("statusText", "s", [&status] { return status.statusText(); }));
    methods.push_back(query("statusSubText", "s", [&status] { return status.statusSubText(); }));
    methods.push_back(
        command("setIsInteractive", {"b", "interactive"}, Mode::Waits, [&status](Request request) {
            status.setIsInteractive(request.arguments.first().toBool());
        }));
    methods.push_back(
        command("clearLog", {}, Mode::Waits, [&helper](Request) { helper.logger().clear(); }));
}

void addEstimate(std::vector<RemoteMethod> &methods, CVSyncManager &manager)
{
    methods.push_back(
        query("syncPercentEstimate", "u", [&manager] { return manager.syncPercentEstimate(); }));
    methods.push_back(query("syncBytesEstimate", "s", [&manager] {
        return FileManagerTools::sizeDescriptionForByteCount(manager.syncBytesEstimate());
    }));
    methods.push_back(command("refreshSyncBytesEstimate", {}, Mode::Oneway, [&manager](Request) {
        UserDefaults::standard().synchronize();
        manager.refreshSyncBytesEstimate();
    }));
}

void addLists(std::vector<RemoteMethod> &methods, CaravelHelperController &helper)
{
    SelectionLists &lists = helper.lists();
    methods.push_back(query("musicItems", "aa{sv}", [&lists] { return lists.musicItems(); }));
    methods.push_back(command("setSelectedMusicIdentifiers", {"as", "identifiers"}, Mode::Oneway,
                              [&lists](Request request) {
                                  lists.setSelectedMusicIdentifiers(
                                      request.arguments.first().toStringList());
                              }));
}

} // namespace

std::vector<RemoteMethod> methods(CaravelHelperController &controller)
{
    std::vector<RemoteMethod> methods;
    addConnection(methods, controller);
    addState(methods, controller);
    addEstimate(methods, controller.syncManager());
    addLists(methods, controller);
    methods.push_back(
        command("logChanged", {"s", "line"}, Mode::Oneway, [&controller](Request request) {
            controller.logChanged(request.arguments.first().toString());
        }));
    return methods;
}

} // namespace FrontEndProtocol
