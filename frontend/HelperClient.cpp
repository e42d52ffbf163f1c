#include "frontend/HelperClient.h"

#include "platform/bus/NamedConnection.h"
#include "platform/core/Localized.h"
#include "platform/files/FileManager.h"
#include "platform/lists/Bundle.h"
#include "util/FileManagerTools.h"
#include "util/Folders.h"

#include <QDir>
#include <QEventLoop>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTimer>

using namespace std::chrono_literals;
using Kind = HelperFailure::Kind;

namespace {

constexpr auto answerLimit = 60s; // a list reads whole libraries, an eject flushes a stick
constexpr auto startLimit = 10s;

const QString goneAway = QStringLiteral("the helper has gone away");

QString helperBundle()
{
    return Bundle::main().path() + QStringLiteral("/Contents/Helpers/CaravelHelper");
}

// The helper outlives this command: it keeps neither its terminal nor its folder, so that a folder
// given relative to that has to be spelled out.
bool startDetached(const QString &program)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QString volumes = QStringLiteral("CARAVEL_VOLUMES");
    if (const QString folder = environment.value(volumes); !folder.isEmpty())
        environment.insert(volumes, QDir().absoluteFilePath(folder));
    QProcess process;
    process.setProgram(program);
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(QDir::rootPath());
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

std::unique_ptr<RemoteObject> remoteHelper()
{
    const QString connection = Protocol::helperConnection(Bundle::main().version());
    return std::make_unique<RemoteObject>(NamedConnection::busName(connection),
                                          Protocol::helperPath.toString(),
                                          Protocol::helperInterface.toString());
}

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
        m_remote = remoteHelper();
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
    remoteHelper()->send(method.key());
}

// The bus starts the helper where it knows how to; else its executable beside ours is started, by
// one command at a time: a second helper would send the first away under the other's hands.
bool HelperClient::startHelper()
{
    if (m_remote->call(Protocol::pspIsMounted.key(), {}, startLimit).value)
        return true;
    FileManagerTools::createPath(Folders::support());
    const auto lock = FileManager::defaultManager().lock(
        Folders::support() + QStringLiteral("/.starting"), startLimit);
    return m_remote->isAvailable() || startOwnHelper();
}

bool HelperClient::startOwnHelper()
{
    const QString program = Bundle(helperBundle()).executable();
    if (program.isEmpty())
        fail(Kind::NoHelper,
             QStringLiteral("no helper: none is installed in %1").arg(helperBundle()));
    else if (!startDetached(program))
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

bool HelperClient::isHelperText(const QString &text, const char *english)
{
    const Bundle helper(helperBundle());
    return isLocalizedForm(text, english, helper.resourcePath() + QStringLiteral("/translations"));
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
