#include "cli/ListCommands.h"

#include "cli/Output.h"
#include "cli/Session.h"
#include "cli/SourcesCommand.h"
#include "frontend/Rows.h"
#include "platform/lists/UserDefaults.h"
#include "protocol/Protocol.h"
#include "util/Settings.h"

#include <QJsonArray>
#include <QSet>

#include <algorithm>

using Rows::text;

namespace {

/// As the command line calls the kind: saves are what a user backs up.
QString nameOf(const Protocol::List &list)
{
    const QString name = list.saveName.toString().toLower();
    return name == u"backup" ? QStringLiteral("saves") : name;
}

const Protocol::List &listNamed(const QString &name)
{
    const auto *const found = std::ranges::find(Protocol::lists, name, nameOf);
    Q_ASSERT(found != std::end(Protocol::lists));
    return *found;
}

QStringList currentSelection(const Protocol::List &list, const QVariantList &rows)
{
    if (!list.rowsTellSelection)
        return Settings::selection(list.saveName.toString()).value_or(QStringList());
    QStringList selected;
    for (const QVariant &each : rows) {
        const QVariantMap row = each.toMap();
        if (row.value(QStringLiteral("enabled")).toBool())
            selected.append(text(row, u"identifier"));
    }
    return selected;
}

// Entries in the unit, its size in bytes, or what a game save says of itself.
QString detail(const QVariantMap &row)
{
    QStringList parts;
    for (const QStringView key :
         {QStringView(u"size"), QStringView(u"description"), QStringView(u"date")}) {
        if (const QString part = text(row, key); !part.isEmpty())
            parts.append(part);
    }
    return Output::printable(parts.join(QStringLiteral("  ")));
}

void printRows(const QVariantList &rows, const QStringList &selected)
{
    int width = 0;
    for (const QVariant &row : rows)
        width = std::max(width, Output::columns(text(row.toMap(), u"name")));
    for (const QVariant &each : rows) {
        const QVariantMap row = each.toMap();
        const QString name = Output::printable(text(row, u"name"));
        const QString mark = selected.contains(text(row, u"identifier")) ? QStringLiteral("[x] ")
                                                                         : QStringLiteral("[ ] ");
        const QString gap(width - Output::columns(name) + 2, u' ');
        Output::print((mark + name + gap + detail(row)).trimmed());
    }
}

QSet<QString> identifiersNamed(const QVariantList &rows, const QString &name)
{
    QSet<QString> named;
    for (const QVariant &each : rows) {
        const QVariantMap row = each.toMap();
        if (text(row, u"identifier") == name)
            return {name};
        if (text(row, u"name") == name)
            named.insert(text(row, u"identifier"));
    }
    return named;
}

QSet<QString> toSet(const QStringList &identifiers)
{
    return {identifiers.begin(), identifiers.end()};
}

bool isWanted(SelectMode mode, bool isNow, bool isNamed)
{
    switch (mode) {
    case SelectMode::Add:
        return isNow || isNamed;
    case SelectMode::Remove:
        return isNow && !isNamed;
    case SelectMode::All:
        return true;
    case SelectMode::None:
        return false;
    case SelectMode::Replace:
        break;
    }
    return isNamed;
}

ExitStatus refuseNames(const QString &kind, const QStringList &names)
{
    Output::error(QStringLiteral("not among the %1: %2 (nothing was changed)")
                      .arg(kind, names.join(QStringLiteral(", "))));
    return Refused;
}

} // namespace

QStringList listKinds()
{
    QStringList names;
    for (const Protocol::List &list : Protocol::lists)
        names.append(nameOf(list));
    return names;
}

Selection changedSelection(const QVariantList &rows, const QStringList &current, SelectMode mode,
                           const QStringList &names)
{
    Selection selection;
    QSet<QString> named;
    for (const QString &name : names) {
        const QSet<QString> identifiers = identifiersNamed(rows, name);
        named.unite(identifiers);
        if (identifiers.isEmpty())
            selection.unknown.append(name);
    }
    for (const QVariant &each : rows) {
        const QVariantMap row = each.toMap();
        const QString identifier = text(row, u"identifier");
        if (row.contains(QStringLiteral("identifier")) &&
            isWanted(mode, current.contains(identifier), named.contains(identifier)))
            selection.identifiers.append(identifier);
    }
    return selection;
}

ExitStatus runList(const QString &kindName, bool json)
{
    const Protocol::List &list = listNamed(kindName);
    Session session;
    HelperClient &helper = session.helper();
    const QVariantList rows = helper.ask(list.items).toList();
    if (helper.failed())
        return session.report();
    if (json)
        Output::json(QJsonArray::fromVariantList(rows));
    else
        printRows(rows, currentSelection(list, rows));
    if (rows.isEmpty())
        explainEmptyList(helper, list.saveName.toString());
    return Done;
}

ExitStatus runSelect(const QString &kindName, SelectMode mode, const QStringList &names)
{
    const Protocol::List &list = listNamed(kindName);
    Session session;
    HelperClient &helper = session.helper();
    const QVariantList rows = helper.ask(list.items).toList();
    if (helper.failed())
        return session.report();
    const Selection selection = changedSelection(rows, currentSelection(list, rows), mode, names);
    if (!selection.unknown.isEmpty())
        return refuseNames(kindName, selection.unknown);
    if (mode == SelectMode::All && rows.isEmpty()) {
        Output::error(
            QStringLiteral("nothing among the %1 to select (nothing was changed)").arg(kindName));
        return Refused;
    }
    helper.tell(list.select, {selection.identifiers});
    // Asked after the change, and served after it.
    const QVariantList now = helper.ask(list.items).toList();
    if (helper.failed())
        return session.report();
    UserDefaults::standard().synchronize();
    const QStringList selected = currentSelection(list, now);
    printRows(now, selected);
    if (toSet(selected) == toSet(selection.identifiers))
        return Done;
    Output::error(QStringLiteral("the selection was not taken as it was asked for"));
    return Refused;
}
