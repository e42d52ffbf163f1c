#include "cli/ReportCommand.h"

#include "cli/Output.h"
#include "cli/Paging.h"
#include "cli/Session.h"
#include "frontend/Rows.h"
#include "util/ByteCount.h"

#include <QDateTime>
#include <QJsonArray>
#include <QLocale>

#include <utility>

using Rows::text;

namespace {

QString outcomeText(const QString &outcome)
{
    static constexpr std::pair<QStringView, QStringView> texts[] = {
        {u"complete", u"complete"},
        {u"incomplete", u"complete but for what was left out"},
        {u"cancelled", u"cancelled"},
        {u"disconnected", u"cut short: the stick went away"},
        {u"full", u"cut short: the stick was full"},
        {u"tooLarge", u"nothing was copied: the stick has no room for all of it"},
    };
    for (const auto &[name, shown] : texts) {
        if (outcome == name)
            return shown.toString();
    }
    return outcome;
}

QString timeText(const QVariant &seconds)
{
    if (!seconds.isValid())
        return QStringLiteral("not known");
    const auto time = QDateTime::fromMSecsSinceEpoch(qRound64(seconds.toDouble() * 1000));
    return QLocale().toString(time, QLocale::ShortFormat);
}

void printField(QStringView name, const QString &value)
{
    Output::print(name.toString().leftJustified(12) + Output::printable(value));
}

/// The kept files' folder: a copy's path less the one that the file had on the stick.
QString keptFolder(const QVariantMap &item)
{
    return text(item, u"source").chopped(text(item, u"path").size());
}

void printItems(const QVariantList &items)
{
    QString folder;
    for (const QVariant &each : items) {
        const QVariantMap item = each.toMap();
        const QString path = text(item, u"path");
        if (text(item, u"action") == u"keep") {
            folder = keptFolder(item);
            Output::print(Output::printable(QStringLiteral("  kept: %1").arg(path)));
        } else {
            Output::print(Output::printable(
                QStringLiteral("  left out: %1 (%2)").arg(path, text(item, u"reason"))));
        }
    }
    if (folder.isEmpty())
        return;
    Output::print(Output::printable(
        QStringLiteral("No sync had placed what was kept; the copies lie in %1").arg(folder)));
    Output::print(QStringLiteral("What should be on the stick again belongs into a dropbox."));
}

} // namespace

QStringList reportLines(const QVariantMap &summary)
{
    static constexpr std::pair<QStringView, QStringView> named[] = {
        {u"copied", u"Copied:"}, {u"replaced", u"Replaced:"}, {u"removed", u"Removed:"},
        {u"kept", u"Kept:"},     {u"leftOut", u"Left out:"},  {u"missing", u"Missing:"},
    };
    QStringList lines;
    for (const auto &[key, title] : named) {
        const quint64 count = summary.value(key.toString()).toULongLong();
        if (count == 0)
            continue;
        QString line = title.toString().leftJustified(12) + QString::number(count);
        const quint64 bytes = summary.value(QStringLiteral("copiedBytes")).toULongLong();
        if (key == u"copied" && bytes > 0)
            line += u" ("_qs + FileManagerTools::sizeDescriptionForByteCount(bytes) + u')';
        lines.append(line);
    }
    return lines;
}

ExitStatus runReport(bool json)
{
    Session session;
    HelperClient &helper = session.helper();
    const QVariantMap summary = helper.ask(Protocol::lastRunSummary).toMap();
    const QVariantList items = allRows(helper, Protocol::lastRunItems);
    if (helper.failed())
        return session.report();
    if (json) {
        QJsonObject object = QJsonObject::fromVariantMap(summary);
        object.insert(QStringLiteral("items"), QJsonArray::fromVariantList(items));
        Output::json(object);
        return Done;
    }
    if (summary.isEmpty()) {
        Output::error(QStringLiteral("There was no sync yet."));
        return Refused;
    }
    printField(u"Stick:", text(summary, u"volume"));
    printField(u"Started:", timeText(summary.value(QStringLiteral("started"))));
    printField(u"Ended:", timeText(summary.value(QStringLiteral("ended"))));
    printField(u"Outcome:", outcomeText(text(summary, u"outcome")));
    for (const QString &line : reportLines(summary))
        Output::print(line);
    printItems(items);
    return Done;
}
