#include "app/FrontEnd.h"

#include "platform/bus/RemoteObject.h"
#include "protocol/Protocol.h"

namespace Callback = Protocol::FrontEnd;

FrontEnd::FrontEnd(QObject *parent)
    : QObject(parent)
{
}

FrontEnd::~FrontEnd() = default;

void FrontEnd::connectTo(const QString &address, const QString &objectPath)
{
    forget();
    m_remote = std::make_unique<RemoteObject>(address, objectPath, Callback::interface.toString());
    connect(m_remote.get(), &RemoteObject::vanished, this, &FrontEnd::vanished);
    // One that died since it called is not told of any more.
    if (!m_remote->isAvailable())
        QMetaObject::invokeMethod(m_remote.get(), &RemoteObject::vanished, Qt::QueuedConnection);
}

void FrontEnd::forget()
{
    if (!m_remote)
        return;
    // What it still has to say is not about the next one.
    QObject::disconnect(m_remote.get(), nullptr, this, nullptr);
    // It may be this very object whose signal is being handled.
    m_remote.release()->deleteLater();
}

bool FrontEnd::isAt(const QString &address) const
{
    return m_remote && m_remote->service() == address;
}

bool FrontEnd::isOpen() const
{
    if (!m_remote)
        return false;
    const auto answer = m_remote->call(Callback::isOpen.key(), {}, std::chrono::seconds(1), false);
    return answer.value && answer.value->toBool();
}

void FrontEnd::send(const Protocol::Method &method, const QVariantList &arguments) const
{
    if (m_remote)
        m_remote->send(method.key(), arguments);
}

void FrontEnd::doAlert(const QString &title, const QString &message, AlertStyle style)
{
    if (m_remote)
        m_remote->send(Callback::doAlert.key(), {title, message, static_cast<int>(style)}, this,
                       [=, this] { Q_EMIT notShown(title, message, style); });
}

void FrontEnd::updateUserInterface() const
{
    send(Callback::updateUserInterface);
}

void FrontEnd::updateSyncBytes() const
{
    send(Callback::updateSyncBytes);
}

void FrontEnd::updateSyncBytesEstimate() const
{
    send(Callback::updateSyncBytesEstimate);
}

void FrontEnd::syncDidFinish(bool completed) const
{
    send(Callback::syncDidFinish, {completed});
}

void FrontEnd::pspDidMount() const
{
    send(Callback::pspDidMount);
}

void FrontEnd::pspDidUnmount() const
{
    send(Callback::pspDidUnmount);
}

void FrontEnd::writeToLog(const QString &line) const
{
    send(Callback::writeToLog, {line});
}

void FrontEnd::reloadMoviesView() const
{
    send(Callback::reloadMoviesView);
}

void FrontEnd::startConversionAnimation() const
{
    send(Callback::startConversionAnimation);
}

void FrontEnd::stopConversionAnimation() const
{
    send(Callback::stopConversionAnimation);
}

void FrontEnd::planIsReady(bool ready) const
{
    send(Callback::planIsReady, {ready});
}
