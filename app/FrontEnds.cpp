#include "app/FrontEnds.h"

#include "platform/bus/RemoteObject.h"
#include "protocol/Protocol.h"

#include <algorithm>
#include <chrono>
#include <functional>

namespace Callback = Protocol::FrontEnd;

namespace {

constexpr auto isOpenLimit = std::chrono::seconds(1);

// A command that asks one question and goes names its object so.
bool isForOneQuestion(const QString &objectPath)
{
    return objectPath.endsWith(Protocol::FrontEnd::queryEnding);
}

} // namespace

FrontEnds::FrontEnds(QObject *parent)
    : QObject(parent)
{
}

FrontEnds::~FrontEnds() = default;

FrontEnds::Place FrontEnds::at(const QString &address)
{
    return std::ranges::find_if(
        m_all, [&](const FrontEnd &each) { return each.remote->service() == address; });
}

void FrontEnds::connectTo(const QString &address, const QString &objectPath)
{
    const auto earlier = at(address);
    const bool wasInteractive = earlier != m_all.end() && earlier->isInteractive;
    take(earlier);
    auto remote =
        std::make_unique<RemoteObject>(address, objectPath, Callback::interface.toString());
    connect(remote.get(), &RemoteObject::vanished, this,
            [this, address] { Q_EMIT vanished(address); });
    // One that died since it called is not told of any more.
    if (!remote->isAvailable())
        QMetaObject::invokeMethod(remote.get(), &RemoteObject::vanished, Qt::QueuedConnection);
    m_all.push_back({std::move(remote), !isForOneQuestion(objectPath), wasInteractive});
}

void FrontEnds::take(Place place)
{
    if (place == m_all.end())
        return;
    // What it still has to say is not about the next one.
    QObject::disconnect(place->remote.get(), nullptr, this, nullptr);
    // It may be this very object whose signal is being handled.
    place->remote.release()->deleteLater();
    m_all.erase(place);
}

bool FrontEnds::forget(const QString &address)
{
    const auto place = at(address);
    if (place == m_all.end())
        return false;
    take(place);
    Q_EMIT interactiveChanged(isInteractive());
    return true;
}

void FrontEnds::setIsInteractive(const QString &address, bool interactive)
{
    const auto place = at(address);
    (place == m_all.end() ? m_isInteractiveWithout : place->isInteractive) = interactive;
    Q_EMIT interactiveChanged(isInteractive());
}

bool FrontEnds::isInteractive() const
{
    return m_isInteractiveWithout || std::ranges::any_of(m_all, &FrontEnd::isInteractive);
}

bool FrontEnds::isOpen() const
{
    std::vector<std::function<RemoteObject::Answer()>> answers;
    for (const FrontEnd &each : m_all)
        answers.push_back(each.remote->begin(Callback::isOpen.key(), {}, isOpenLimit));
    return std::ranges::any_of(
        answers, [](const auto &answer) { return answer().value.value_or(false).toBool(); });
}

void FrontEnds::send(const Protocol::Method &method, const QVariantList &arguments) const
{
    for (const FrontEnd &each : m_all)
        each.remote->send(method.key(), arguments);
}

void FrontEnds::doAlert(const QString &title, const QString &message, AlertStyle style)
{
    offer({title, message}, style, {});
}

void FrontEnds::offer(const QStringList &alert, AlertStyle style, QStringList tried)
{
    const auto newest = std::find_if(m_all.rbegin(), m_all.rend(), [&](const FrontEnd &each) {
        return each.takesAlerts && !tried.contains(each.remote->service());
    });
    if (newest == m_all.rend()) {
        Q_EMIT notShown(alert[0], alert[1], style);
        return;
    }
    tried.append(newest->remote->service());
    newest->remote->ask(Callback::doAlert.key(), {alert[0], alert[1], static_cast<int>(style)},
                        this, [=, this](const RemoteObject::Answer &answer) {
                            if (!answer.value)
                                offer(alert, style, tried);
                        });
}

void FrontEnds::updateUserInterface() const
{
    send(Callback::updateUserInterface);
}

void FrontEnds::updateSyncBytes() const
{
    send(Callback::updateSyncBytes);
}

void FrontEnds::updateSyncBytesEstimate() const
{
    send(Callback::updateSyncBytesEstimate);
}

void FrontEnds::syncDidFinish(bool completed) const
{
    send(Callback::syncDidFinish, {completed});
}

void FrontEnds::pspDidMount() const
{
    send(Callback::pspDidMount);
}

void FrontEnds::pspDidUnmount() const
{
    send(Callback::pspDidUnmount);
}

void FrontEnds::writeToLog(const QString &line) const
{
    send(Callback::writeToLog, {line});
}

void FrontEnds::reloadMoviesView() const
{
    send(Callback::reloadMoviesView);
}

void FrontEnds::startConversionAnimation() const
{
    send(Callback::startConversionAnimation);
}

void FrontEnds::stopConversionAnimation() const
{
    send(Callback::stopConversionAnimation);
}

void FrontEnds::planIsReady(bool ready) const
{
    send(Callback::planIsReady, {ready});
}
