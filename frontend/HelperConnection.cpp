#include "frontend/HelperConnection.h"

#include "frontend/HelperProcess.h"
#include "platform/bus/NamedConnection.h"
#include "platform/core/Localized.h"
#include "platform/files/FileManager.h"
#include "util/TextFormat.h"

using namespace std::chrono_literals;

namespace {

constexpr auto startLimit = 10s;
constexpr auto nextTry = 200ms;
constexpr auto calmTime = 60s;
constexpr int mostEndings = 3; // within the calm time; then it is not started again by itself

} // namespace

HelperConnection::HelperConnection(QObject *parent)
    : QObject(parent)
    , m_frontEnd(FrontEndObject::Stay::UntilItQuits)
{
    m_again.setSingleShot(true);
    m_again.setInterval(nextTry);
    connect(&m_again, &QTimer::timeout, this, &HelperConnection::introduce);
}

HelperConnection::~HelperConnection()
{
    if (isConnected())
        tell(Protocol::applicationWillQuit);
    NamedConnection::flush();
}

void HelperConnection::search()
{
    if (isConnected())
        return;
    if (!NamedConnection::busAvailable()) {
        fail(localized("There is no session bus to reach the helper by."));
        return;
    }
    if (!m_remote) {
        m_remote = HelperProcess::remote();
        connect(m_remote.get(), &RemoteObject::vanished, this, &HelperConnection::lost);
        connect(m_remote.get(), &RemoteObject::appeared, this, &HelperConnection::introduce);
    }
    m_ended = 0;
    m_startLimit = QDeadlineTimer(QDeadlineTimer::Forever);
    setState(State::Searching);
    introduce();
}

void HelperConnection::introduce()
{
    if (isConnected())
        return;
    m_again.stop();
    const QVariantList object{QVariant::fromValue(ObjectPath{m_frontEnd.path()})};
    // With a helper of our own under way the bus is not to start another.
    m_remote->ask(
        Protocol::setApplication.key(), object, this,
        [this](const RemoteObject::Answer &answer) { introduced(answer); },
        m_starting || m_state == State::NoHelper ? RemoteObject::Service::AsItIs
                                                 : RemoteObject::Service::Started);
}

void HelperConnection::introduced(const RemoteObject::Answer &answer)
{
    if (isConnected())
        return;
    if (answer.value) {
        m_starting.reset();
        m_startLimit = QDeadlineTimer(QDeadlineTimer::Forever);
        setState(State::Connected);
    } else if (m_state == State::NoHelper) {
        return;
    } else if (!answer.isUnserved) {
        fail(filled(localized("The helper did not answer: %@"), {answer.error}));
    } else {
        startOwnHelper();
    }
}

// Where another front-end starts one at this moment, or ours is on its way, it is asked again until
// the time is over.
void HelperConnection::startOwnHelper()
{
    if (m_startLimit.isForever())
        m_startLimit.setRemainingTime(startLimit);
    if (m_startLimit.hasExpired()) {
        fail(localized("The helper was started but did not appear."));
        return;
    }
    m_again.start();
    if (m_starting)
        return;
    auto lock = FileManager::defaultManager().lock(HelperProcess::startLock(), 0ms);
    if (!lock)
        return;
    const QString executable = HelperProcess::bundle().executable();
    if (executable.isEmpty())
        fail(localized("The helper is not installed. Please install Caravel again."));
    else if (!HelperProcess::startDetached(executable))
        fail(localized("The helper can't be started."));
    else
        m_starting.emplace(std::move(*lock));
}

void HelperConnection::lost()
{
    if (!isConnected())
        return;
    if (m_calm.hasExpired())
        m_ended = 0;
    m_calm.setRemainingTime(calmTime);
    if (++m_ended > mostEndings) {
        fail(localized("The helper keeps ending by itself."));
        return;
    }
    setState(State::Searching);
    // One that takes its place is there at once, and is not to be sent away by another.
    m_again.start();
}

void HelperConnection::fail(const QString &text)
{
    m_again.stop();
    m_starting.reset();
    setState(State::NoHelper, text);
}

void HelperConnection::setState(State state, const QString &failure)
{
    if (m_state == state && m_failure == failure)
        return;
    m_state = state;
    m_failure = failure;
    Q_EMIT stateChanged();
}

void HelperConnection::ask(const Protocol::Method &method, const QVariantList &arguments,
                           QObject *context, Answered answered, Refused refused)
{
    if (!m_remote) {
        // As an answer would come: later.
        QMetaObject::invokeMethod(
            context, [answered] { answered({}); }, Qt::QueuedConnection);
        return;
    }
    m_remote->ask(method.key(), arguments, context,
                  [answered = std::move(answered),
                   refused = std::move(refused)](const RemoteObject::Answer &answer) {
                      if (answer.value || !refused)
                          answered(answer.value.value_or(QVariant()));
                      else
                          refused(answer.error);
                  });
}

void HelperConnection::tell(const Protocol::Method &method, const QVariantList &arguments)
{
    if (m_remote)
        m_remote->send(method.key(), arguments);
}
