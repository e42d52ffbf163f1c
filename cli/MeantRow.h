#pragma once

#include <QString>
#include <QVariantMap>

class HelperClient;
namespace Protocol {
struct Method;
}

/// The one row of a list that the user means: by its identifier, or by a name that no other row
/// has. Empty for none and for several, with the error told, and where the helper failed. `what` is
/// what the rows are ("movie"), `list` the kind of list that shows them.
QVariantMap meantRow(HelperClient &helper, const Protocol::Method &items, const QString &id,
                     const QString &what, const QString &list);
