#include "cli/StatusCommands.h"

#include "cli/Output.h"
#include "cli/Session.h"
#include "frontend/HelperProcess.h"
#include "frontend/ProgressText.h"
#include "frontend/Rows.h"
#include "util/ByteCount.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

using namespace std::chrono_literals;

namespace {

struct Estimate
{
    QString size;
    quint64 percent = 0;
};

Estimate readEstimate(HelperClient &helper)
{
    return {helper.askText(Protocol::syncBytesEstimate),
            helper.askCount(Protocol::syncPercentEstimate)};
}

QString estimateText(const Estimate &estimate)
{
    return QStringLiteral("%1 (%2%)").arg(estimate.size).arg(estimate.percent);
}

void insertEstimate(QJsonObject &object, const Estimate &estimate)
{
    object.insert(QStringLiteral("syncBytesEstimate"), estimate.size);
    object.insert(QStringLiteral("syncPercentEstimate"), static_cast<qint64>(estimate.percent));
}

void printField(QStringView name, const QString &value)
{
    Output::print(name.toString().leftJustified(12) + Output::printable(value));
}

void printStick(const QVariantMap &stick)
{
    const auto bytes = [&](QStringView key) {
        return FileManagerTools::sizeDescriptionForByteCount(
            stick.value(key.toString()).toULongLong());
    };
    printField(u"Stick:", QStringLiteral("%1 (%2)").arg(Rows::text(stick, u"name"),
                                                        Rows::text(stick, u"volume")));
    printField(u"Space:", QStringLiteral("%1 of %2 used, %3 free")
                              .arg(bytes(u"used"), bytes(u"capacity"), bytes(u"free")));
}

void printStatus(const HelperState &state, const QVariantMap &stick, bool firstSync,
                 const Estimate &estimate)
{
    printField(u"PSP:", state.mounted ? QStringLiteral("connected") : QStringLiteral("none"));
    if (!stick.isEmpty())
        printStick(stick);
    printField(u"Status:", state.statusText);
    printField(u"", state.statusSubText);
    printField(u"Syncing:", Output::yesNo(state.syncing));
    if (ProgressText::percent(state))
        printField(u"Progress:", ProgressText::amount(state));
    if (state.converting)
        printField(u"Movies:", state.percentConverted);
    printField(u"First sync:", Output::yesNo(firstSync));
    printField(u"Selected:", estimateText(estimate));
}

// Whether the helper reported a new estimate in time.
bool refreshEstimate(Session &session)
{
    HelperClient &helper = session.helper();
    QEventLoop loop;
    bool arrived = false;
    QObject::connect(&session.frontEnd(), &FrontEndObject::estimateChanged, &loop, [&] {
        arrived = true;
        loop.quit();
    });
    QObject::connect(&helper, &HelperClient::gone, &loop, &QEventLoop::quit);
    QTimer::singleShot(60s, &loop, &QEventLoop::quit);
    helper.tell(Protocol::refreshSyncBytesEstimate);
    if (!helper.failed())
        loop.exec();
    return arrived;
}

QString volumeOf(const QVariant &stick)
{
    return Rows::text(stick.toMap(), u"volume");
}

constexpr auto alertLimit = 2s;

// Until the PSP has no stick, or another one.
ExitStatus waitForEject(Session &session, const QString &volume)
{
    HelperClient &helper = session.helper();
    QEventLoop loop;
    QObject::connect(&helper, &HelperClient::gone, &loop, &QEventLoop::quit);
    bool isTold = false;
    QObject::connect(&session.frontEnd(), &FrontEndObject::alert, &loop,
                     [&](const QString &, const QString &message) {
                         Output::printError(message);
                         isTold = true;
                         loop.quit();
                     });
    while (!helper.failed()) {
        const QVariant stick = helper.ask(Protocol::stick);
        const HelperState state = helper.state();
        if (helper.failed())
            break;
        if (volumeOf(stick) != volume)
            return Done;
        if (HelperProcess::isText(state.statusText, "Eject Failed")) {
            if (!isTold) { // by the alert that says why, which may still be under way
                QTimer::singleShot(alertLimit, &loop, &QEventLoop::quit);
                loop.exec();
            }
            Output::error(state.statusText + u'\n' + state.statusSubText);
            return Refused;
        }
        QTimer::singleShot(250ms, &loop, &QEventLoop::quit);
        loop.exec();
    }
    return session.report();
}

} // namespace

QJsonObject stateToJson(const HelperState &state)
{
    return {
        {QStringLiteral("mounted"), state.mounted},
        {QStringLiteral("statusText"), state.statusText},
        {QStringLiteral("statusSubText"), state.statusSubText},
        {QStringLiteral("syncing"), state.syncing},
        {QStringLiteral("canCancelSync"), state.canCancel},
        {QStringLiteral("isIndeterminate"), state.indeterminate},
        {QStringLiteral("syncBytes"), static_cast<qint64>(state.syncBytes)},
        {QStringLiteral("syncBytesTotal"), static_cast<qint64>(state.syncBytesTotal)},
        {QStringLiteral("isConvertingMovie"), state.converting},
        {QStringLiteral("percentConverted"), state.percentConverted},
    };
}

ExitStatus runStatus(bool json)
{
    Session session;
    HelperClient &helper = session.helper();
    const HelperState state = helper.state();
    const QVariantMap stick = helper.ask(Protocol::stick).toMap();
    const bool firstSync = helper.askBool(Protocol::isFirstSync);
    const Estimate estimate = readEstimate(helper);
    if (helper.failed())
        return session.report();
    if (!json) {
        printStatus(state, stick, firstSync, estimate);
        return Done;
    }
    QJsonObject object = stateToJson(state);
    object.insert(QStringLiteral("stick"), QJsonObject::fromVariantMap(stick));
    object.insert(QStringLiteral("isFirstSync"), firstSync);
    insertEstimate(object, estimate);
    Output::json(object);
    return Done;
}

ExitStatus runEstimate(bool json)
{
    Session session;
    HelperClient &helper = session.helper();
    if (!helper.failed() && !refreshEstimate(session) && !helper.failed()) {
        Output::error(QStringLiteral("the helper has made no estimate within a minute"));
        return Refused;
    }
    const Estimate estimate = readEstimate(helper);
    if (helper.failed())
        return session.report();
    QJsonObject object;
    insertEstimate(object, estimate);
    if (json)
        Output::json(object);
    else
        Output::print(estimateText(estimate));
    return Done;
}

ExitStatus runEject()
{
    Session session(Session::Stay::UntilItQuits); // takes the alert that says who is in the way
    HelperClient &helper = session.helper();
    const bool mounted = helper.askBool(Protocol::pspIsMounted);
    const bool canSync = helper.askBool(Protocol::canSync);
    const QString volume = volumeOf(helper.ask(Protocol::stick));
    if (helper.failed())
        return session.report();
    if (!canSync) {
        Output::error(mounted ? QStringLiteral("A sync is running.")
                              : QStringLiteral("No PSP is connected."));
        return Refused;
    }
    helper.tell(Protocol::ejectPSP, {QVariantMap()});
    return waitForEject(session, volume);
}
