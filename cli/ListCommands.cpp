#include "cli/ListCommands.h"

#include "cli/Output.h"
#include "cli/Session.h"
#include "frontend/Rows.h"
#include "util/Settings.h"

#include <QJsonArray>
#include <QSet>

#include <algorithm>

using Rows::text;

namespace {

const ListKind &kindNamed(const QString &name)
{
    const auto &kinds = listKinds();
    const auto found = std::find_if(kinds.begin(), kinds.end(),
                                    [&](const ListKind &kind) { return kind.name == name; });
    Q_ASSERT(found != kinds.end());
    return *found;
}

QStringList currentSelection(const ListKind &kind, const QVariantList &rows)
{
    if (!kind.saveName.isEmpty())
        return Settings::selection(kind.saveName).value_or(QStringList());
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

ExitStatus refuseNames(const ListKind &kind, const QStringList &names)
{
    Output::error(QStringLiteral("not among the %1: %2 (nothing was changed)")
                      .arg(kind.name, names.join(QStringLiteral(", "))));
    return Refused;
}

} // namespace

const std::vector<ListKind> &listKinds()
{
    using namespace Protocol;
    static const std::vector<ListKind> kinds = {
        {QStringLiteral("music"), musicItems, setSelectedMusicIdentifiers, {}},
        {QStringLiteral("photos"), photosItems, setSelectedPhotosIdentifiers, {}},
        {QStringLiteral("bookmarks"), bookmarksItems, setSelectedBookmarksIdentifiers, {}},
        {QStringLiteral("movies"), moviesItems, setSelectedMoviesIdentifiers, {}},
        {QStringLiteral("saves"), backupItems, setSelectedBackupIdentifiers,
         QStringLiteral("Backup")},
    };
    return kinds;
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
    for (const QVariant &row : rows) {
        const QString identifier = text(row.toMap(), u"identifier");
        if (isWanted(mode, current.contains(identifier), named.contains(identifier)))
            selection.identifiers.append(identifier);
    }
    return selection;
}

ExitStatus runList(const QString &kindName, bool json)
{
    const ListKind &kind = kindNamed(kindName);
    Session session;
    HelperClient &helper = session.helper();
    const QVariantList rows = helper.ask(kind.items).toList();
    if (helper.failed())
        return session.report();
    if (json)
        Output::json(QJsonArray::fromVariantList(rows));
    else
        printRows(rows, currentSelection(kind, rows));
    return Done;
}

ExitStatus runSelect(const QString &kindName, SelectMode mode, const QStringList &names)
{
    const ListKind &kind = kindNamed(kindName);
    Session session;
    HelperClient &helper = session.helper();
    const QVariantList rows = helper.ask(kind.items).toList();
    if (helper.failed())
        return session.report();
    const Selection selection = changedSelection(rows, currentSelection(kind, rows), mode, names);
    if (!selection.unknown.isEmpty())
        return refuseNames(kind, selection.unknown);
    helper.tell(kind.select, {selection.identifiers});
    // Asked after the change, and served after it.
    const QVariantList now = helper.ask(kind.items).toList();
    if (helper.failed())
        return session.report();
    const bool rowsTell = kind.saveName.isEmpty();
    printRows(now, rowsTell ? currentSelection(kind, now) : selection.identifiers);
    return Done;
}
