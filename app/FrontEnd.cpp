#include "app/FrontEnd.h"

#include "platform/bus/RemoteObject.h"

FrontEnd::FrontEnd(QObject *parent)
    : QObject(parent)
{
}

FrontEnd::~FrontEnd() = default;

void FrontEnd::connectTo(const QString &address, const QString &objectPath)
{
    disconnect();
    m_remote = std::make_unique<RemoteObject>(address, objectPath,
                                              QStringLiteral("org.caravel.CaravelFrontEnd"));
    connect(m_remote.get(), &RemoteObject::vanished, this, &FrontEnd::vanished);
    // One that died since it called is not told of any more.
    if (!m_remote->isAvailable())
        QMetaObject::invokeMethod(m_remote.get(), &RemoteObject::vanished, Qt::QueuedConnection);
}

void FrontEnd::disconnect()
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
    const auto answer =
        m_remote->call(QStringLiteral("isOpen"), {}, std::chrono::seconds(1), false);
    return answer.value && answer.value->toBool();
}

void FrontEnd::send(const QString &method, const QVariantList &arguments) const
{
    if (m_remote)
        m_remote->send(method, arguments);
}

void FrontEnd::doAlert(const QString &title, const QString &message, AlertStyle style)
{
    if (m_remote)
        m_remote->send(QStringLiteral("doAlert"), {title, message, static_cast<int>(style)}, this,
                       [=, this] { Q_EMIT notShown(title, message, style); });
}

void FrontEnd::updateUserInterface() const
{
    send(QStringLiteral("updateUserInterface"));
}

void FrontEnd::updateSyncBytes() const
{
    send(QStringLiteral("updateSyncBytes"));
}

void FrontEnd::updateSyncBytesEstimate() const
{
    send(QStringLiteral("updateSyncBytesEstimate"));
}

void FrontEnd::syncDidFinish(bool completed) const
{
    send(QStringLiteral("syncDidFinish"), {completed});
}

void FrontEnd::pspDidMount() const
{
    send(QStringLiteral("pspDidMount"));
}

void FrontEnd::pspDidUnmount() const
{
    send(QStringLiteral("pspDidUnmount"));
}

void FrontEnd::writeToLog(const QString &line) const
{
    send(QStringLiteral("writeToLog"), {line});
}

void FrontEnd::reloadMoviesView() const
{
    send(QStringLiteral("reloadMoviesView"));
}

void FrontEnd::startConversionAnimation() const
{
    send(QStringLiteral("startConversionAnimation"));
}

void FrontEnd::stopConversionAnimation() const
{
    send(QStringLiteral("stopConversionAnimation"));
}
