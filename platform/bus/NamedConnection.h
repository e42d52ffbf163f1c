#pragma once

#include <QObject>
#include <QString>
#include <QVariantList>

#include <functional>
#include <memory>
#include <vector>

/// A request as it reaches the served object.
struct RemoteRequest
{
    QString caller;         ///< the caller's own address (its unique bus name)
    QVariantList arguments; ///< of the declared types, see RemoteMethod
};

/// One method that an object offers to other processes.
///
/// The signatures are D-Bus's, one string a value: "b" bool, "i" int, "u" uint, "t" qulonglong,
/// "d" double, "s" QString, "as" QStringList, "a{sv}" QVariantMap, "aa{sv}" QVariantList of
/// QVariantMap, "o" an object's path as QString. There are no others: to serve a method with one
/// ends the process.
struct RemoteMethod
{
    QString name;
    QStringList in;      ///< type of each argument
    QStringList inNames; ///< their names, for introspection
    QString out;         ///< type of the answer; empty: none
    /// The caller does not wait: annotated as NoReply, and a caller that wants an answer all the
    /// same has it before the method runs.
    bool oneway = false;
    std::function<QVariant(const RemoteRequest &)> call; ///< main thread

    using Answer = std::function<void(const QVariant &result)>;
    /// In the place of `call` where the answer takes long: `answer` is to be called when it is
    /// known, once and on any thread. Not for a oneway method. Main thread.
    std::function<void(const RemoteRequest &, Answer answer)> begin = nullptr;
};

/// Serves an object of ours to other processes under a name that they can look up. A call with
/// wrong types changes nothing: it is logged and answered with an error. Main thread.
class NamedConnection : public QObject
{
    Q_OBJECT
public:
    explicit NamedConnection(QObject *parent = nullptr);
    ~NamedConnection() override;

    /// The bus name that stands for a connection name: "org.caravel." and the name with every
    /// character outside [A-Za-z0-9_] replaced by "_".
    static QString busName(const QString &connectionName);

    /// Whether there is a session bus at all.
    static bool busAvailable();

    /// Calls `lost` once when the session bus goes away, as long as `context` lives.
    static void observeLoss(QObject *context, std::function<void()> lost);

    /// Waits (at most 1 s) until all that this process has sent so far is with the bus. A process
    /// that is about to exit calls it, since messages still in the process are lost with it.
    static void flush();

    /// Serves the methods at `objectPath` under `interfaceName`. False where the path is taken.
    bool exportObject(const QString &objectPath, const QString &interfaceName,
                      std::vector<RemoteMethod> methods);

    /// Claims the name. False when another process has it: this one goes on without it, and gets it
    /// when the other leaves.
    bool registerName(const QString &connectionName);
    /// Whether this process has that name now.
    bool hasName(const QString &connectionName) const;

    /// Gives the name back and serves nothing any more. May be called by a method being served.
    void invalidate();

private:
    class Private;
    std::unique_ptr<Private> d;
};
