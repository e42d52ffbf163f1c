#include "frontend/FrontEndObject.h"

#include "protocol/ServedMethods.h"

namespace Callback = Protocol::FrontEnd;

namespace {

QString objectPath(FrontEndObject::Stay stay)
{
    QString path = QStringLiteral("/CaravelFrontEnd");
    if (stay == FrontEndObject::Stay::ForOneQuestion)
        path += Callback::queryEnding;
    return path;
}

} // namespace

FrontEndObject::FrontEndObject(Stay stay)
    : m_path(objectPath(stay))
{
    m_connection.exportObject(m_path, Callback::interface.toString(), methods());
}

std::vector<RemoteMethod> FrontEndObject::methods()
{
    ServedMethods served;
    served.answer(Callback::isOpen, [this] { return m_isOpen; });
    served.perform(Callback::doAlert, [this](const RemoteRequest &request) {
        const QVariantList &given = request.arguments;
        Q_EMIT alert(given[0].toString(), given[1].toString(), given[2].toInt());
    });
    for (const auto *method : {&Callback::updateUserInterface, &Callback::updateSyncBytes,
                               &Callback::stopConversionAnimation})
        served.perform(*method, [this](const RemoteRequest &) { Q_EMIT changed(); });
    // The row of a movie whose conversion starts says so.
    for (const auto *method : {&Callback::reloadMoviesView, &Callback::startConversionAnimation}) {
        served.perform(*method, [this](const RemoteRequest &) {
            Q_EMIT changed();
            Q_EMIT moviesChanged();
        });
    }
    served.perform(Callback::updateSyncBytesEstimate,
                   [this](const RemoteRequest &) { Q_EMIT estimateChanged(); });
    served.perform(Callback::syncDidFinish, [this](const RemoteRequest &request) {
        Q_EMIT syncDidFinish(request.arguments[0].toBool());
    });
    served.perform(Callback::pspDidMount, [this](const RemoteRequest &) { Q_EMIT pspDidMount(); });
    served.perform(Callback::pspDidUnmount,
                   [this](const RemoteRequest &) { Q_EMIT pspDidUnmount(); });
    served.perform(Callback::writeToLog, [this](const RemoteRequest &request) {
        Q_EMIT logLine(request.arguments[0].toString());
    });
    served.perform(Callback::planIsReady, [this](const RemoteRequest &request) {
        Q_EMIT planIsReady(request.arguments[0].toBool());
    });
    return served.take(Callback::methods);
}
