#include "cli/SourcesCommand.h"

#include "cli/Output.h"
#include "cli/Session.h"
#include "frontend/Rows.h"
#include "protocol/Protocol.h"
#include "util/Settings.h"

#include <QJsonArray>

#include <algorithm>

using Rows::text;

namespace {

struct Kind
{
    QStringView saveName;
    QStringView setting;
    const char *entries; ///< what its sources hold
};

constexpr Kind kinds[] = {
    {u"Music", Settings::musicSource.name, "playlists"},
    {u"Photos", Settings::photosSource.name, "albums"},
    {u"Bookmarks", Settings::bookmarkSource.name, "folders"},
};

std::vector<QVariantMap> sourcesOf(const QVariantList &rows, const Kind &kind)
{
    std::vector<QVariantMap> sources;
    for (const QVariant &each : rows) {
        if (const QVariantMap row = each.toMap(); text(row, u"kind") == kind.saveName)
            sources.push_back(row);
    }
    return sources;
}

bool isSet(const QVariantMap &row, const char *key)
{
    return row.value(QString::fromLatin1(key)).toBool();
}

int entriesOf(const QVariantMap &row)
{
    return row.value(QStringLiteral("entries")).toInt();
}

QString countOf(const QVariantMap &row, const Kind &kind)
{
    const int entries = entriesOf(row);
    if (!isSet(row, "found"))
        return QStringLiteral("not found");
    QString name = QLatin1StringView(kind.entries);
    if (entries == 1)
        name.chop(1);
    return entries < 0 ? QStringLiteral("found") : QStringLiteral("%1 %2").arg(entries).arg(name);
}

QString commandFor(const QVariantMap &row, const Kind &kind)
{
    return QStringLiteral("caravel prefs %1 %2").arg(kind.setting, text(row, u"value"));
}

void printSources(const QVariantList &rows)
{
    for (const Kind &kind : kinds) {
        Output::print(kind.saveName.toString());
        for (const QVariantMap &row : sourcesOf(rows, kind)) {
            const QString mark =
                isSet(row, "chosen") ? QStringLiteral("  [x] ") : QStringLiteral("  [ ] ");
            QString line = mark + text(row, u"title").leftJustified(23) + countOf(row, kind);
            if (isSet(row, "found"))
                line += QStringLiteral(", ") + text(row, u"place");
            if (isSet(row, "found") && !isSet(row, "chosen"))
                line += QStringLiteral(" (to choose it: %1)").arg(commandFor(row, kind));
            Output::print(Output::printable(line));
        }
    }
}

/// Of the chosen one.
QString whyEmpty(const QVariantMap &row)
{
    const QString title = text(row, u"title");
    if (!isSet(row, "found"))
        return QStringLiteral("nothing of %1 was found").arg(title);
    const QString place = text(row, u"place");
    return entriesOf(row) < 0 ? QStringLiteral("%1 can't be read (%2)").arg(title, place)
                              : QStringLiteral("%1 has none (%2)").arg(title, place);
}

} // namespace

ExitStatus runSources(bool json)
{
    Session session;
    const QVariantList rows = session.helper().ask(Protocol::sources).toList();
    if (session.helper().failed())
        return session.report();
    if (json)
        Output::json(QJsonArray::fromVariantList(rows));
    else
        printSources(rows);
    return Done;
}

void explainEmptyList(HelperClient &helper, const QString &saveName)
{
    const auto *const kind = std::ranges::find(kinds, saveName, &Kind::saveName);
    if (kind == std::end(kinds))
        return;
    const auto sources = sourcesOf(helper.ask(Protocol::sources).toList(), *kind);
    const QString name = QLatin1StringView(kind->entries);
    for (const QVariantMap &row : sources) {
        if (isSet(row, "chosen"))
            Output::error(QStringLiteral("no %1: %2").arg(name, whyEmpty(row)));
    }
    bool isAnyThere = false;
    for (const QVariantMap &row : sources) {
        if (!isSet(row, "found") || isSet(row, "chosen"))
            continue;
        isAnyThere = true;
        Output::error(QStringLiteral("%1 is there with %2; to choose it: %3")
                          .arg(text(row, u"title"), countOf(row, *kind), commandFor(row, *kind)));
    }
    if (!isAnyThere)
        Output::error(
            QStringLiteral("nothing else was found on this computer; caravel sources says "
                           "what is looked for"));
}
