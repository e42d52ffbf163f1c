#pragma once

#include "platform/desktop/Alerts.h"

#include <QObject>
#include <QString>

#include <memory>

class RemoteObject;
namespace Protocol {
struct Method;
}

/// The connected front-end's object. While none is connected every call is passed over. Calls don't
/// wait for the front-end (but isOpen()), and reach it in order. Main thread.
class FrontEnd : public QObject
{
    Q_OBJECT
public:
    explicit FrontEnd(QObject *parent = nullptr);
    ~FrontEnd() override;

    bool isConnected() const { return m_remote != nullptr; }
    /// Takes the object of that process in the place of any earlier one.
    void connectTo(const QString &address, const QString &objectPath);
    /// From now on none is connected.
    void forget();
    /// Whether the connected front-end is at that address.
    bool isAt(const QString &address) const;

    /// Whether the front-end says that it is open; false where it doesn't say within a second.
    bool isOpen() const;

    /// An alert that the front-end can't take, or that it goes over without an answer, is handed
    /// back with notShown().
    void doAlert(const QString &title, const QString &message, AlertStyle style);
    void updateUserInterface() const;
    void updateSyncBytes() const;
    void updateSyncBytesEstimate() const;
    void syncDidFinish(bool completed) const;
    void pspDidMount() const;
    void pspDidUnmount() const;
    void writeToLog(const QString &line) const;
    void reloadMoviesView() const;
    void startConversionAnimation() const;
    void stopConversionAnimation() const;
    void planIsReady(bool ready) const;

Q_SIGNALS:
    /// The connected front-end's process has left without a word.
    void vanished();
    void notShown(const QString &title, const QString &message, AlertStyle style);

private:
    void send(const Protocol::Method &method, const QVariantList &arguments = {}) const;

    std::unique_ptr<RemoteObject> m_remote;
};
