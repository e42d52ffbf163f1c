#include "app/FrontEndProtocol.h"

#include "app/CaravelHelperController.h"
#include "app/LateAnswer.h"
#include "app/Sources.h"
#include "modules/movies/CVSyncMovies.h"
#include "platform/lists/UserDefaults.h"
#include "protocol/ServedMethods.h"
#include "util/ByteCount.h"

namespace FrontEndProtocol {

namespace {

using Request = const RemoteRequest &;

QString text(Request request)
{
    return request.arguments.first().toString();
}

void answerLate(ServedMethods &served, const Protocol::Method &method,
                std::function<LateAnswer::Ask()> question)
{
    const auto late = std::make_shared<LateAnswer>(std::move(question));
    served.bindLate(method,
                    [late](Request, const RemoteMethod::Answer &answer) { late->tell(answer); });
}

void bindConnection(ServedMethods &served, CaravelHelperController &helper)
{
    served.perform(Protocol::setApplication, [&helper](Request request) {
        helper.setApplication(request.caller, text(request));
    });
    served.perform(Protocol::applicationWillQuit,
                   [&helper](Request request) { helper.applicationWillQuit(request.caller); });
    served.perform(Protocol::ejectPSP, [&helper](Request) { helper.ejectPSP(); });
    served.perform(Protocol::openCaravel, [&helper](Request) { helper.openCaravel(); });
    served.perform(Protocol::syncNow, [&helper](Request request) {
        helper.syncNow(request.arguments.first().toMap());
    });
}

QVariantMap stickOf(CVSyncManager &manager)
{
    if (!manager.pspIsMounted())
        return {};
    const auto bytes = [](std::optional<quint64> count) {
        return QVariant::fromValue<qulonglong>(count.value_or(0));
    };
    return {
        {QStringLiteral("name"), manager.pspName()},
        {QStringLiteral("volume"), manager.pspVolume()},
        {QStringLiteral("capacity"), bytes(manager.pspSpace())},
        {QStringLiteral("free"), bytes(manager.pspFreeSpace())},
        {QStringLiteral("used"), bytes(manager.pspUsedSpace())},
    };
}

void bindState(ServedMethods &served, CaravelHelperController &helper)
{
    CVSyncManager &manager = helper.syncManager();
    SyncStatus &status = helper.status();
    served.answer(Protocol::log, [&helper] { return helper.logger().log(); });
    served.answer(Protocol::stick, [&manager] { return stickOf(manager); });
    served.answer(Protocol::isFirstSync, [&manager] { return manager.isFirstSync(); });
    served.answer(Protocol::pspIsMounted, [&manager] { return manager.pspIsMounted(); });
    served.answer(Protocol::canSync, [&manager] { return manager.canSync(); });
    served.answer(Protocol::isSyncing, [&manager] { return manager.isSyncing(); });
    served.answer(Protocol::canCancelSync, [&manager] { return manager.canCancelSync(); });
    served.answer(Protocol::isIndeterminate, [&manager] { return manager.isIndeterminate(); });
    served.answer(Protocol::syncBytesTotal, [&manager] { return manager.syncBytesTotal(); });
    served.answer(Protocol::syncBytes, [&manager] { return manager.syncBytes(); });
    served.answer(Protocol::statusText, [&status] { return status.statusText(); });
    served.answer(Protocol::statusSubText, [&status] { return status.statusSubText(); });
    served.perform(Protocol::setIsInteractive, [&helper](Request request) {
        helper.frontEnds().setIsInteractive(request.caller, request.arguments.first().toBool());
    });
    served.answer(Protocol::percentConverted,
                  [&helper] { return helper.movies().percentConverted(); });
    served.perform(Protocol::changeStartOnLogin,
                   [&helper](Request) { helper.changeStartOnLogin(); });
    served.perform(Protocol::clearLog, [&helper](Request) { helper.logger().clear(); });
}

void bindEstimate(ServedMethods &served, CVSyncManager &manager)
{
    served.answer(Protocol::syncPercentEstimate,
                  [&manager] { return manager.syncPercentEstimate(); });
    served.answer(Protocol::syncBytesEstimate, [&manager] {
        return FileManagerTools::sizeDescriptionForByteCount(manager.syncBytesEstimate());
    });
    served.perform(Protocol::refreshSyncBytesEstimate, [&manager](Request) {
        UserDefaults::standard().synchronize();
        manager.refreshSyncBytesEstimate();
    });
}

void bindPlans(ServedMethods &served, Plans &plans)
{
    served.perform(Protocol::requestPlan, [&plans](Request) { plans.request(); });
    served.answer(Protocol::planSummary, [&plans] { return plans.summary(); });
    served.bind(Protocol::planItems, [&plans](Request request) {
        const QVariantList &given = request.arguments;
        return QVariant(plans.items(given[0].toString(), given[1].toUInt(), given[2].toUInt()));
    });
}

void bindRecord(ServedMethods &served, const RunRecord &record)
{
    served.answer(Protocol::lastRunSummary, [&record] { return record.summary(); });
    served.bind(Protocol::lastRunItems, [&record](Request request) {
        const QVariantList &given = request.arguments;
        return QVariant(record.items(given[0].toUInt(), given[1].toUInt()));
    });
}

void bindLists(ServedMethods &served, CaravelHelperController &helper)
{
    SelectionLists &lists = helper.lists();
    for (const Protocol::List &list : Protocol::lists) {
        const QString saveName = list.saveName.toString();
        if (saveName != CVSyncMovies::saveName()) // whose rows the queue adds to
            answerLate(served, list.items, [&lists, saveName] {
                return [&lists, saveName] {
                    return lists.items(saveName);
                };
            });
        served.perform(list.select, [&lists, saveName](Request request) {
            lists.setSelected(saveName, request.arguments.first().toStringList());
        });
    }
}

void bindSources(ServedMethods &served)
{
    answerLate(served, Protocol::sources, [] { return Sources::rows; });
}

void bindMovies(ServedMethods &served, MovieQueue &movies)
{
    answerLate(served, Protocol::moviesItems, [&movies] { return movies.moviesItems(); });
    served.answer(Protocol::isConvertingMovie, [&movies] { return movies.isConvertingMovie(); });
    served.perform(Protocol::addMoviesFromArray, [&movies](Request request) {
        movies.addMoviesFromArray(request.arguments.first().toStringList());
    });
    served.perform(Protocol::removeMovieItem, [&movies](Request request) {
        movies.removeMovieItem(request.arguments.first().toMap());
    });
    served.perform(Protocol::renameMovieItem, [&movies](Request request) {
        movies.renameMovieItem(request.arguments[0].toMap(), request.arguments[1].toString());
    });
}

void bindBackups(ServedMethods &served, CaravelHelperController &helper)
{
    SelectionLists &lists = helper.lists();
    served.perform(Protocol::logChanged,
                   [&helper](Request request) { helper.logChanged(text(request)); });
    served.bind(Protocol::backupSubItemsForIdentifier, [&lists](Request request) {
        return QVariant(lists.backupSubItemsForIdentifier(text(request)));
    });
    served.perform(Protocol::restoreBackupWithIdentifier,
                   [&helper](Request request) { helper.restoreBackup(text(request)); });
    served.perform(Protocol::deleteBackupWithIdentifier,
                   [&helper](Request request) { helper.deleteBackup(text(request)); });
}

} // namespace

std::vector<RemoteMethod> methods(CaravelHelperController &controller)
{
    ServedMethods served;
    bindConnection(served, controller);
    bindState(served, controller);
    bindEstimate(served, controller.syncManager());
    bindPlans(served, controller.plans());
    bindRecord(served, controller.record());
    bindLists(served, controller);
    bindSources(served);
    bindMovies(served, controller.movies());
    bindBackups(served, controller);
    return served.take(Protocol::helperMethods);
}

} // namespace FrontEndProtocol
