#include "frontend/HelperClient.h"

#include "frontend/HelperProcess.h"
#include "platform/bus/NamedConnection.h"
#include "platform/files/FileManager.h"

#include <QEventLoop>
#include <QTimer>

using namespace std::chrono_literals;
using Kind = HelperFailure::Kind;

namespace {

constexpr auto answerLimit = 60s; // a list reads whole libraries, an eject flushes a stick
constexpr auto startLimit = 10s;

const QString goneAway = QStringLiteral("the helper has gone away");

} // namespace

HelperClient::HelperClient() = default;
HelperClient::~HelperClient() = default;

void HelperClient::connectToHelper(const QString &objectPath)
{
    if (!NamedConnection::busAvailable()) {
        fail(Kind::NoHelper, QStringLiteral("no helper: there is no session bus to reach it by"));
        return;
    }
    // One that is just going takes nobody any more, and another is found or started.
    for (int tries = 0; tries < 3; ++tries) {
        m_remote = HelperProcess::remote();
        if ((!m_remote->isAvailable() && !startHelper()) || introduce(objectPath))
            return;
    }
    fail(Kind::NoHelper, goneAway);
}

// False where it is worth another try.
bool HelperClient::introduce(const QString &objectPath)
{
    const QVariantList object{QVariant::fromValue(ObjectPath{objectPath})};
    const auto answer = m_remote->call(Protocol::setApplication.key(), object, answerLimit, false);
    if (answer.isUnserved)
        return false;
    if (!answer.value)
        fail(Kind::NoHelper, QStringLiteral("no helper: %1").arg(answer.error));
    connect(m_remote.get(), &RemoteObject::vanished, this, [this] {
        fail(Kind::NoHelper, goneAway);
        Q_EMIT gone();
    });
    return true;
}

void HelperClient::tellRunningHelper(const Protocol::Method &method)
{
    HelperProcess::remote()->send(method.key());
}

// The bus starts the helper where it knows how to; else its executable beside ours is started, by
// one front-end at a time.
bool HelperClient::startHelper()
{
    if (m_remote->call(Protocol::pspIsMounted.key(), {}, startLimit).value)
        return true;
    const auto lock = FileManager::defaultManager().lock(HelperProcess::startLock(), startLimit);
    return m_remote->isAvailable() || startOwnHelper();
}

bool HelperClient::startOwnHelper()
{
    const Bundle helper = HelperProcess::bundle();
    const QString program = helper.executable();
    if (program.isEmpty())
        fail(Kind::NoHelper,
             QStringLiteral("no helper: none is installed in %1").arg(helper.path()));
    else if (!HelperProcess::startDetached(program))
        fail(Kind::NoHelper, QStringLiteral("no helper: %1 can't be started").arg(program));
    else if (!waitUntilThere())
        fail(
            Kind::NoHelper,
            QStringLiteral("no helper: %1 was started but did not appear on the bus").arg(program));
    return !failed();
}

bool HelperClient::waitUntilThere()
{
    QEventLoop loop;
    connect(m_remote.get(), &RemoteObject::appeared, &loop, &QEventLoop::quit);
    QTimer::singleShot(startLimit, &loop, &QEventLoop::quit);
    if (!m_remote->isAvailable())
        loop.exec();
    return m_remote->isAvailable();
}

QVariant HelperClient::ask(const Protocol::Method &method, const QVariantList &arguments)
{
    if (failed())
        return {};
    const RemoteObject::Answer answer = m_remote->call(method.key(), arguments, answerLimit, false);
    if (answer.value)
        return *answer.value;
    if (m_remote->isAvailable() && !answer.isUnserved)
        fail(Kind::Refused, QStringLiteral("%1: %2").arg(method.name, answer.error));
    else
        fail(Kind::NoHelper, goneAway);
    return {};
}

HelperState HelperClient::state()
{
    const bool wasSyncing = askBool(Protocol::isSyncing);
    HelperState state{
        .mounted = askBool(Protocol::pspIsMounted),
        .canCancel = askBool(Protocol::canCancelSync),
        .indeterminate = askBool(Protocol::isIndeterminate),
        .statusText = askText(Protocol::statusText),
        .statusSubText = askText(Protocol::statusSubText),
        .syncBytes = askCount(Protocol::syncBytes),
        .syncBytesTotal = askCount(Protocol::syncBytesTotal),
        .converting = askBool(Protocol::isConvertingMovie),
        .percentConverted = askText(Protocol::percentConverted),
    };
    // What was read in between is then of the run.
    state.syncing = wasSyncing && askBool(Protocol::isSyncing);
    return state;
}

void HelperClient::tell(const Protocol::Method &method, const QVariantList &arguments)
{
    if (!failed())
        m_remote->send(method.key(), arguments);
}

void HelperClient::fail(Kind kind, const QString &text)
{
    if (!failed())
        m_failure = {kind, text};
}
