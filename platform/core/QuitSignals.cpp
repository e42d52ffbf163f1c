#include "platform/core/QuitSignals.h"

#include "platform/core/Log.h"
#include "platform/core/own/Posix.h"

#include <QSocketNotifier>

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>

namespace {

constexpr std::array<int, 2> quitSignals = {SIGTERM, SIGINT};

// The only thing that a signal handler may touch here.
std::atomic<int> signalPipe = -1;
static_assert(std::atomic<int>::is_always_lock_free);

extern "C" void writeSignalToPipe(int number)
{
    const int error = errno;
    const auto byte = static_cast<unsigned char>(number);
    // A full pipe holds signals enough already.
    [[maybe_unused]] const ssize_t written = ::write(signalPipe.load(), &byte, 1);
    errno = error;
}

} // namespace

/// The pipe and the handlers that write into it.
class QuitSignals::Catcher
{
public:
    Catcher(int readEnd, int writeEnd)
        : m_readEnd(readEnd)
        , m_writeEnd(writeEnd)
    {
        signalPipe = writeEnd;
        struct sigaction action = {};
        action.sa_handler = writeSignalToPipe;
        action.sa_flags = SA_RESTART;
        sigemptyset(&action.sa_mask);
        for (size_t i = 0; i < quitSignals.size(); ++i)
            ::sigaction(quitSignals[i], &action, &m_before[i]);
    }

    ~Catcher()
    {
        for (size_t i = 0; i < quitSignals.size(); ++i)
            ::sigaction(quitSignals[i], &m_before[i], nullptr);
        signalPipe = -1;
    }

    Catcher(const Catcher &) = delete;
    Catcher &operator=(const Catcher &) = delete;

    int readEnd() const { return m_readEnd.get(); }

private:
    const Posix::Descriptor m_readEnd;
    const Posix::Descriptor m_writeEnd;
    std::array<struct sigaction, quitSignals.size()> m_before = {};
};

QuitSignals::QuitSignals(std::function<void(int)> handler, QObject *parent)
    : QObject(parent)
    , m_handler(std::move(handler))
{
    std::array<int, 2> ends = {};
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        qCWarning(lcPlatform, "Can't catch the signals to quit: %s",
                  qUtf8Printable(Posix::reason(errno)));
        return;
    }
    m_catcher = std::make_unique<Catcher>(ends[0], ends[1]);
    auto *notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &QuitSignals::handlePending);
}

QuitSignals::~QuitSignals()
{
    // The notifiers go before the descriptors that they watch.
    qDeleteAll(findChildren<QSocketNotifier *>());
}

void QuitSignals::handlePending()
{
    unsigned char number = 0;
    if (::read(m_catcher->readEnd(), &number, 1) == 1)
        m_handler(number);
}
