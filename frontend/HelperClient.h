#pragma once

#include "frontend/HelperState.h"
#include "platform/bus/RemoteObject.h"
#include "protocol/Protocol.h"

#include <QObject>
#include <QVariantList>

#include <memory>
#include <optional>

/// Why the helper did not do what it was asked for.
struct HelperFailure
{
    enum class Kind {
        NoHelper, ///< there is none to ask, or none any more
        Refused,  ///< it answered with an error
    };
    Kind kind;
    QString text; ///< English, for the user
};

/// The helper of this program's own build. The first failure is remembered, and every later
/// question answers an empty value without asking, so that a caller may ask all that it needs and
/// look at the outcome once. Main thread; a question holds it for a minute at most.
class HelperClient : public QObject
{
    Q_OBJECT
public:
    HelperClient();
    ~HelperClient() override;

    /// Finds the helper, starting it when none runs (20 s at most), and hands it the front-end's
    /// object at that path of this process's.
    void connectToHelper(const QString &objectPath);

    /// Sends a oneway call without arguments to the helper if one runs.
    static void tellRunningHelper(const Protocol::Method &method);

    QVariant ask(const Protocol::Method &method, const QVariantList &arguments = {});
    bool askBool(const Protocol::Method &method) { return ask(method).toBool(); }
    QString askText(const Protocol::Method &method) { return ask(method).toString(); }
    quint64 askCount(const Protocol::Method &method) { return ask(method).toULongLong(); }
    HelperState state();

    /// Sends a oneway call.
    void tell(const Protocol::Method &method, const QVariantList &arguments = {});

    bool failed() const { return m_failure.has_value(); }
    /// The first failure.
    const std::optional<HelperFailure> &failure() const { return m_failure; }

Q_SIGNALS:
    /// The helper has left the bus, or given its place to another: failed() holds from now on.
    void gone();

private:
    bool introduce(const QString &objectPath);
    bool startHelper();
    bool startOwnHelper();
    bool waitUntilThere();
    void fail(HelperFailure::Kind kind, const QString &text);

    std::unique_ptr<RemoteObject> m_remote;
    std::optional<HelperFailure> m_failure;
};
