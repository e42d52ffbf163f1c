#include "cli/Paging.h"

QVariantList allRows(HelperClient &helper, const Protocol::Method &question,
                     const QVariantList &about)
{
    constexpr uint rowsAtOnce = 1000;
    QVariantList all;
    while (!helper.failed()) {
        const QVariantList where{static_cast<uint>(all.size()), rowsAtOnce};
        const QVariantList page = helper.ask(question, about + where).toList();
        if (page.isEmpty())
            break;
        all.append(page);
    }
    return all;
}
