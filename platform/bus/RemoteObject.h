#pragma once

#include <QObject>
#include <QString>
#include <QVariantList>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

/// The path of an object on the caller's own connection, as an argument of a call (D-Bus type "o"):
/// `QVariant::fromValue(ObjectPath{path})`.
struct ObjectPath
{
    QString path;
};
Q_DECLARE_METATYPE(ObjectPath)

/// An object of another process. Main thread.
class RemoteObject : public QObject
{
    Q_OBJECT
public:
    /// `service` is a bus name (unique or well-known); nothing is sent yet.
    RemoteObject(QString service, QString path, QString interfaceName, QObject *parent = nullptr);
    ~RemoteObject() override;

    QString service() const;

    /// Sends a call and does not wait; calls arrive in the order in which they were sent. The
    /// service is not started for it. What becomes of the call is not told.
    ///
    /// An argument's Qt type decides its D-Bus type, as in RemoteMethod: bool "b", int "i", uint
    /// "u", qulonglong "t", double "d", QString "s", QStringList "as", QVariantMap "a{sv}",
    /// QVariantList of QVariantMap "aa{sv}", ObjectPath "o".
    void send(const QString &method, const QVariantList &arguments = {});

    struct Answer
    {
        std::optional<QVariant> value; ///< nothing: the call failed; an invalid variant: no result
        QString error;                 ///< the failure's text
        bool isUnserved = false;       ///< nobody served such an object: nothing was done
    };

    /// Sends a call and goes on: `answered` is called once with what became of it, as long as
    /// `context` lives. There is no limit. Where it is wanted and nobody has the name, the bus
    /// starts the service, if it knows how to.
    enum class Service { AsItIs, Started };
    void ask(const QString &method, const QVariantList &arguments, QObject *context,
             std::function<void(const Answer &)> answered, Service service = Service::AsItIs);

    /// Calls and waits for the answer, without serving the event loop. Dictionaries, lists and
    /// strings come as plain Qt values.
    Answer call(const QString &method, const QVariantList &arguments,
                std::chrono::milliseconds limit, bool startService = true);

    /// The same in two steps, so that several objects can be asked at once: the call is sent, and
    /// what comes back waits for its answer. The service is not started for it.
    std::function<Answer()> begin(const QString &method, const QVariantList &arguments,
                                  std::chrono::milliseconds limit);

    /// Whether a process has the service's name now. What is asked after the construction is
    /// complete with the signals: a process that leaves after a "yes" is reported by vanished().
    bool isAvailable() const;

Q_SIGNALS:
    /// The process that had the name has left the bus, or given the name to another.
    void vanished();
    /// A process has taken the name.
    void appeared();

private:
    class Private;
    std::unique_ptr<Private> d;
};
