#include "frontend/FrontEndObject.h"

#include "frontend/HelperClient.h"
#include "protocol/ServedMethods.h"

namespace Callback = Protocol::FrontEnd;

FrontEndObject::FrontEndObject(HelperClient &helper, Stay stay)
    : m_helper(helper)
{
    QString path = QStringLiteral("/CaravelFrontEnd");
    if (stay == Stay::ForOneQuestion)
        path += Callback::queryEnding;
    m_connection.exportObject(path, Callback::interface.toString(), methods());
    m_helper.connectToHelper(path);
}

FrontEndObject::~FrontEndObject()
{
    m_helper.tell(Protocol::applicationWillQuit);
    NamedConnection::flush();
}

std::vector<RemoteMethod> FrontEndObject::methods()
{
    ServedMethods served;
    served.answer(Callback::isOpen, [this] { return m_isOpen; });
    served.perform(Callback::doAlert, [this](const RemoteRequest &request) {
        const QVariantList &given = request.arguments;
        Q_EMIT alert(given[0].toString(), given[1].toString(), given[2].toInt());
    });
    for (const auto *method :
         {&Callback::updateUserInterface, &Callback::updateSyncBytes, &Callback::reloadMoviesView,
          &Callback::startConversionAnimation, &Callback::stopConversionAnimation})
        served.perform(*method, [this](const RemoteRequest &) { Q_EMIT changed(); });
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
