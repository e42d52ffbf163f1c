#pragma once

#include "frontend/ExitStatus.h"
#include "platform/bus/RemoteObject.h"

#include <QObject>
#include <QVariantList>

#include <memory>

/// What the helper shows of its device and its sync at one moment.
struct HelperState
{
    bool mounted = false;
    bool syncing = false;
    bool canCancel = false;
    bool indeterminate = false; ///< the byte counts say nothing now
    QString statusText;
    QString statusSubText;
    quint64 syncBytes = 0;
    quint64 syncBytesTotal = 0;
    bool converting = false; ///< a movie is being converted
    QString percentConverted;

    bool operator==(const HelperState &) const = default;
};

/// The helper of this program's own build. The first call that fails decides the exit status: it is
/// remembered, and every later question answers an empty value without asking, so that a command
/// may ask all that it needs and look at the outcome once.
class HelperClient : public QObject
{
    Q_OBJECT
public:
    HelperClient();
    ~HelperClient() override;

    /// The bus name of the helper of this build.
    static QString service();

    /// Finds the helper, starting it when none runs (10 s at most). False: failed() holds.
    bool connectToHelper();

    QVariant ask(const QString &method, const QVariantList &arguments = {});
    bool askBool(const QString &method) { return ask(method).toBool(); }
    QString askText(const QString &method) { return ask(method).toString(); }
    quint64 askCount(const QString &method) { return ask(method).toULongLong(); }
    HelperState state();

    /// Whether a text of the helper's is that English one, whatever language the helper speaks.
    static bool isText(const QString &text, const char *english);

    /// Sends a oneway call.
    void tell(const QString &method, const QVariantList &arguments = {});

    bool failed() const { return m_failure != Done; }

    /// The exit status of the first failure, whose text goes to the standard error here, once; Done
    /// without one.
    ExitStatus reportFailure();

Q_SIGNALS:
    /// The helper has left the bus: failed() holds from now on.
    void gone();

private:
    bool start();
    bool waitUntilThere();
    void fail(ExitStatus status, const QString &text);

    std::unique_ptr<RemoteObject> m_remote;
    ExitStatus m_failure = Done;
    QString m_failureText;
};
