#include "window/HelperCalls.h"

#include "frontend/HelperConnection.h"

HelperCalls HelperCalls::of(HelperConnection *connection)
{
    return {
        [connection](const Protocol::Method &method, const QVariantList &arguments,
                     QObject *context, Answered answered) {
            connection->ask(method, arguments, context, std::move(answered));
        },
        [connection](const Protocol::Method &method, const QVariantList &arguments) {
            connection->tell(method, arguments);
        },
    };
}
