#pragma once

#include <QByteArray>
#include <QObject>
#include <QStringList>

#include <memory>

/// A program that runs beside ours, in a process group of its own, with its output and its errors
/// in one pipe. Main thread.
class ChildProcess : public QObject
{
    Q_OBJECT
public:
    explicit ChildProcess(QObject *parent = nullptr);
    /// Ends what still runs of it, as kill() does.
    ~ChildProcess() override;

    /// Starts the program in that folder; its standard input is empty. Once per object.
    void start(const QString &program, const QStringList &arguments, const QString &folder);
    bool isRunning() const;

    /// Asks the program to end (SIGTERM); its group is killed when it hasn't within five seconds.
    void terminate();
    /// Kills the program's whole group and waits until it is gone.
    void kill();
    /// Waits (without serving the event loop) until the program has ended; false after the limit.
    bool waitForEnd(int milliseconds);

Q_SIGNALS:
    /// Output as it was read: part of a line, or several.
    void output(const QByteArray &chunk);
    /// Once, from the event loop, after all the output. The status is the program's own, or -1 when
    /// a signal ended it or it could not be started, with the system's text.
    void ended(int exitStatus, const QString &error);

private:
    class Private;
    std::unique_ptr<Private> d;
};
