#include "cli/PlanCommand.h"

#include "cli/Output.h"
#include "cli/Paging.h"
#include "cli/Session.h"
#include "frontend/Rows.h"
#include "util/ByteCount.h"

#include <QEventLoop>
#include <QJsonArray>

#include <algorithm>
#include <utility>

using Rows::text;

namespace {

struct KindName
{
    QStringView shown; ///< on the command line
    QStringView saveName;
};

constexpr KindName kindNames[] = {
    {u"music", u"Music"},         {u"photos", u"Photos"},     {u"movies", u"Movies"},
    {u"bookmarks", u"Bookmarks"}, {u"contacts", u"Contacts"}, {u"saves", u"Backup"},
};

QString saveNameOf(const QString &kind)
{
    const auto *const found = std::ranges::find(kindNames, kind, &KindName::shown);
    return found == std::end(kindNames) ? QString() : found->saveName.toString();
}

quint64 count(const QVariantMap &row, QStringView key)
{
    return row.value(key.toString()).toULongLong();
}

QString size(const QVariantMap &row, QStringView key)
{
    const quint64 bytes = count(row, key);
    return bytes == 0 ? QStringLiteral("nothing")
                      : FileManagerTools::sizeDescriptionForByteCount(bytes);
}

/// Whether a plan was made.
bool awaitPlan(Session &session)
{
    HelperClient &helper = session.helper();
    QEventLoop loop;
    std::optional<bool> ready;
    QObject::connect(&session.frontEnd(), &FrontEndObject::planIsReady, &loop, [&](bool isReady) {
        ready = isReady;
        loop.quit();
    });
    QObject::connect(&helper, &HelperClient::gone, &loop, &QEventLoop::quit);
    helper.tell(Protocol::requestPlan);
    if (!helper.failed())
        loop.exec();
    return ready.value_or(false);
}

// --- As text

QString countsText(const QVariantMap &counts)
{
    static constexpr std::pair<QStringView, QStringView> named[] = {
        {u"copies", u"to copy"},   {u"replacements", u"to replace"}, {u"removals", u"to remove"},
        {u"inPlace", u"in place"}, {u"leftOut", u"left out"},
    };
    QStringList parts;
    for (const auto &[key, words] : named) {
        if (const quint64 number = count(counts, key); number > 0)
            parts.append(QStringLiteral("%1 %2").arg(number).arg(words));
    }
    return parts.isEmpty() ? QStringLiteral("nothing") : parts.join(QStringLiteral(", "));
}

void printKinds(const QVariantMap &summary, const QString &saveName)
{
    for (const QVariant &each : summary.value(QStringLiteral("kinds")).toList()) {
        const QVariantMap kind = each.toMap();
        if (!saveName.isEmpty() && text(kind, u"name") != saveName)
            continue;
        QString line = (text(kind, u"title") + u':').leftJustified(12) + u' ' + countsText(kind);
        if (count(kind, u"bytes") > 0)
            line += QStringLiteral(" (%1 in all)").arg(size(kind, u"bytes"));
        Output::print(Output::printable(line));
    }
}

void printSpace(const QVariantMap &summary)
{
    const bool fits = summary.value(QStringLiteral("fits")).toBool();
    Output::print(QStringLiteral("%1 needed, %2 freed, %3 of %4 free: %5")
                      .arg(size(summary, u"bytesNeeded"), size(summary, u"bytesFreed"),
                           size(summary, u"free"), size(summary, u"capacity"),
                           fits ? QStringLiteral("it fits.")
                                : QStringLiteral("it does not fit, and nothing would be copied.")));
}

QString line(const QVariantMap &item)
{
    QString shown = QStringLiteral("  %1").arg(text(item, u"path"));
    if (const QString reason = text(item, u"reason"); !reason.isEmpty())
        shown += QStringLiteral(" (%1: %2)").arg(reason, text(item, u"source"));
    return Output::printable(shown);
}

template <typename IsMeant>
void printGroup(const char *title, const QVariantList &items, IsMeant isMeant)
{
    bool isTitled = false;
    for (const QVariant &each : items) {
        const QVariantMap item = each.toMap();
        if (!isMeant(item))
            continue;
        if (!std::exchange(isTitled, true))
            Output::print(QString::fromLatin1(title));
        Output::print(line(item));
    }
}

void printItems(const QVariantList &items, bool all)
{
    const auto isOf = [](const QString &action, std::optional<bool> stranger = {}) {
        return [action, stranger](const QVariantMap &item) {
            return text(item, u"action") == action &&
                   (!stranger || *stranger == item.value(QStringLiteral("isStranger")).toBool());
        };
    };
    printGroup("Would go, though no sync placed it:", items, isOf(QStringLiteral("remove"), true));
    printGroup("Would be replaced, though no sync placed it:", items,
               isOf(QStringLiteral("replace"), true));
    printGroup("Would go:", items, isOf(QStringLiteral("remove"), false));
    printGroup("Left out:", items, isOf(QStringLiteral("leaveOut")));
    if (!all)
        return;
    printGroup("Would be replaced:", items, isOf(QStringLiteral("replace"), false));
    printGroup("Would be copied:", items, isOf(QStringLiteral("copy")));
    printGroup("In place:", items, isOf(QStringLiteral("inPlace")));
}

ExitStatus refusal(HelperClient &helper)
{
    const HelperState state = helper.state();
    QString why = QStringLiteral("The stick could not be looked at.");
    if (!state.mounted)
        why = QStringLiteral("No PSP is connected.");
    else if (state.syncing)
        why = QStringLiteral("A sync is running.");
    Output::error(why);
    return Refused;
}

} // namespace

QStringList plannedKinds()
{
    QStringList names;
    for (const KindName &kind : kindNames)
        names.append(kind.shown.toString());
    return names;
}

ExitStatus runPlan(const QString &kind, PlanOptions options)
{
    Session session;
    HelperClient &helper = session.helper();
    const bool isReady = awaitPlan(session);
    if (!isReady && !helper.failed())
        return refusal(helper);
    const QString saveName = saveNameOf(kind);
    const QVariantMap summary = helper.ask(Protocol::planSummary).toMap();
    const QVariantList items = allRows(helper, Protocol::planItems, {saveName});
    if (helper.failed())
        return session.report();
    if (options.json) {
        QJsonObject object = QJsonObject::fromVariantMap(summary);
        object.insert(QStringLiteral("items"), QJsonArray::fromVariantList(items));
        Output::json(object);
        return Done;
    }
    printKinds(summary, saveName);
    printSpace(summary);
    printItems(items, options.all);
    return Done;
}
