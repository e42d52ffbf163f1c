#include "cli/MeantRow.h"

#include "cli/Output.h"
#include "frontend/HelperClient.h"
#include "frontend/Rows.h"

QVariantMap meantRow(HelperClient &helper, const Protocol::Method &items, const QString &id,
                     const QString &what, const QString &list)
{
    const QList<QVariantMap> meant = Rows::meant(helper.ask(items).toList(), id);
    if (meant.size() == 1)
        return meant.first();
    if (!helper.failed())
        Output::error(meant.isEmpty()
                          ? QStringLiteral("there is no %1 %2").arg(what, Output::printable(id))
                          : QStringLiteral("several %1s are called %2; name one by its "
                                           "identifier, see list %3 --json")
                                .arg(what, Output::printable(id), list));
    return {};
}
