#include "platform/core/ChildProcess.h"

#include <QProcess>
#include <QTimer>

#include <csignal>
#include <unistd.h>

using namespace std::chrono_literals;

class ChildProcess::Private
{
public:
    explicit Private(ChildProcess &owner)
        : q(owner)
    {
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.setStandardInputFile(QProcess::nullDevice());
        process.setChildProcessModifier([] { ::setpgid(0, 0); });
        patience.setSingleShot(true);
        patience.setInterval(5s);
    }

    void signalGroup(int number) const
    {
        if (process.processId() > 0)
            ::kill(-static_cast<pid_t>(process.processId()), number);
    }

    void finished(int exitCode, QProcess::ExitStatus status)
    {
        patience.stop();
        readAvailable();
        end(status == QProcess::NormalExit ? exitCode : -1, QString());
    }

    void readAvailable()
    {
        if (const QByteArray chunk = process.readAll(); !chunk.isEmpty())
            Q_EMIT q.output(chunk);
    }

    // From the event loop: who listens may be starting or ending it right now.
    void end(int status, const QString &error)
    {
        QMetaObject::invokeMethod(
            &q, [this, status, error] { Q_EMIT q.ended(status, error); }, Qt::QueuedConnection);
    }

    ChildProcess &q;
    QProcess process;
    QTimer patience;
};

ChildProcess::ChildProcess(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>(*this))
{
    connect(&d->process, &QProcess::readyRead, this, [this] { d->readAvailable(); });
    connect(&d->process, &QProcess::finished, this,
            [this](int exitCode, QProcess::ExitStatus status) { d->finished(exitCode, status); });
    connect(&d->process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            d->end(-1, d->process.errorString());
    });
    connect(&d->patience, &QTimer::timeout, this, [this] { d->signalGroup(SIGKILL); });
}

ChildProcess::~ChildProcess()
{
    d->process.disconnect(this);
    kill();
}

void ChildProcess::start(const QString &program, const QStringList &arguments,
                         const QString &folder)
{
    d->process.setWorkingDirectory(folder);
    d->process.start(program, arguments, QIODevice::ReadOnly);
}

bool ChildProcess::isRunning() const
{
    return d->process.state() != QProcess::NotRunning;
}

void ChildProcess::terminate()
{
    if (!isRunning())
        return;
    d->process.terminate();
    d->patience.start();
}

void ChildProcess::kill()
{
    if (!isRunning())
        return;
    d->signalGroup(SIGKILL);
    d->process.waitForFinished(-1);
}

bool ChildProcess::waitForEnd(int milliseconds)
{
    return !isRunning() || d->process.waitForFinished(milliseconds);
}
