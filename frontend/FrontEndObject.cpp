#include "frontend/FrontEndObject.h"

#include "frontend/HelperClient.h"

namespace {

RemoteMethod notice(QStringView name, const QStringList &types, const QStringList &names,
                    std::function<void(const QVariantList &)> act)
{
    return {name.toString(), types, names, {}, true, [act](const RemoteRequest &request) {
                act(request.arguments);
                return QVariant();
            }};
}

RemoteMethod notice(QStringView name, std::function<void()> act)
{
    return notice(name, {}, {}, [act](const QVariantList &) { act(); });
}

} // namespace

FrontEndObject::FrontEndObject(HelperClient &helper)
    : m_helper(helper)
{
    const QString path = QStringLiteral("/CaravelFrontEnd");
    m_connection.exportObject(path, QStringLiteral("org.caravel.CaravelFrontEnd"), methods());
    m_helper.ask(QStringLiteral("setApplication"), {QVariant::fromValue(ObjectPath{path})});
}

FrontEndObject::~FrontEndObject()
{
    m_helper.tell(QStringLiteral("applicationWillQuit"));
    NamedConnection::flush();
}

std::vector<RemoteMethod> FrontEndObject::methods()
{
    const QString string = QStringLiteral("s");
    return {
        {QStringLiteral("isOpen"),
         {},
         {},
         QStringLiteral("b"),
         false,
         [](const RemoteRequest &) {
             return QVariant(false);
         }},
        notice(u"doAlert", {string, string, QStringLiteral("i")},
               {QStringLiteral("title"), QStringLiteral("message"), QStringLiteral("style")},
               [this](const QVariantList &arguments) {
                   Q_EMIT alert(arguments[0].toString(), arguments[1].toString(),
                                arguments[2].toInt());
               }),
        notice(u"updateUserInterface", [this] { Q_EMIT changed(); }),
        notice(u"updateSyncBytes", [this] { Q_EMIT changed(); }),
        notice(u"updateSyncBytesEstimate", [this] { Q_EMIT estimateChanged(); }),
        notice(
            u"syncDidFinish", {QStringLiteral("b")}, {QStringLiteral("completed")},
            [this](const QVariantList &arguments) { Q_EMIT syncDidFinish(arguments[0].toBool()); }),
        notice(u"pspDidMount", [this] { Q_EMIT pspDidMount(); }),
        notice(u"pspDidUnmount", [this] { Q_EMIT pspDidUnmount(); }),
        notice(u"writeToLog", {string}, {QStringLiteral("line")},
               [this](const QVariantList &arguments) { Q_EMIT logLine(arguments[0].toString()); }),
        notice(u"reloadMoviesView", [this] { Q_EMIT changed(); }),
        notice(u"startConversionAnimation", [this] { Q_EMIT changed(); }),
        notice(u"stopConversionAnimation", [this] { Q_EMIT changed(); }),
    };
}
