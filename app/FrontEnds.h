#pragma once

#include "platform/desktop/Alerts.h"

#include <QObject>
#include <QString>

#include <memory>
#include <vector>

class RemoteObject;
namespace Protocol {
struct Method;
}

/// The objects of the front-ends that are connected. Calls don't wait for a front-end (but
/// isOpen()), and reach each in order. Main thread.
class FrontEnds : public QObject
{
    Q_OBJECT
public:
    explicit FrontEnds(QObject *parent = nullptr);
    ~FrontEnds() override;

    /// Takes the object of that process, as the newest, in the place of an earlier one of its own.
    void connectTo(const QString &address, const QString &objectPath);
    /// Forgets the process's front-end; false where none is connected from there.
    bool forget(const QString &address);
    bool isEmpty() const { return m_all.empty(); }

    /// What a front-end says of itself ends with it; from a process that is none it stays until it
    /// is set otherwise.
    void setIsInteractive(const QString &address, bool interactive);
    /// Whether any is, as set by then.
    bool isInteractive() const;

    /// Whether any says that it is open; all are asked at once, and who hasn't answered within a
    /// second is not.
    bool isOpen() const;

    /// To the newest that is there for more than a question. One that can't take it, or goes
    /// without an answer, leaves it to the next; notShown() where none is left.
    void doAlert(const QString &title, const QString &message, AlertStyle style);

    // To all of them
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
    /// A front-end's process has left without a word.
    void vanished(const QString &address);
    void interactiveChanged(bool interactive);
    void notShown(const QString &title, const QString &message, AlertStyle style);

private:
    struct FrontEnd
    {
        std::unique_ptr<RemoteObject> remote;
        bool takesAlerts = true;
        bool isInteractive = false;
    };
    using Place = std::vector<FrontEnd>::iterator;

    Place at(const QString &address);
    void take(Place place);
    void offer(const QStringList &alert, AlertStyle style, QStringList tried);
    void send(const Protocol::Method &method, const QVariantList &arguments = {}) const;

    std::vector<FrontEnd> m_all;         // the newest last
    bool m_isInteractiveWithout = false; // set by a process that is no front-end
};
