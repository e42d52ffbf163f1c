#include "app/RunRecord.h"

#include "app/Log.h"
#include "app/PlanRows.h"
#include "platform/files/FileManager.h"
#include "platform/lists/PropertyList.h"
#include "sync/StickFiles.h"
#include "util/Folders.h"

namespace {

QString path()
{
    return Folders::support() + QStringLiteral("/LastRun.plist");
}

QString itemsKey()
{
    return QStringLiteral("items");
}

QStringList countKeys()
{
    return {QStringLiteral("copied"), QStringLiteral("replaced"), QStringLiteral("removed"),
            QStringLiteral("kept"),   QStringLiteral("leftOut"),  QStringLiteral("missing")};
}

QVariant seconds(const QDateTime &time)
{
    return static_cast<double>(time.toMSecsSinceEpoch()) / 1000;
}

QString outcomeText(RunReport::Outcome outcome)
{
    switch (outcome) {
    case RunReport::Outcome::Complete:
        return QStringLiteral("complete");
    case RunReport::Outcome::Incomplete:
        return QStringLiteral("incomplete");
    case RunReport::Outcome::Cancelled:
        return QStringLiteral("cancelled");
    case RunReport::Outcome::Disconnected:
        return QStringLiteral("disconnected");
    case RunReport::Outcome::Full:
        return QStringLiteral("full");
    case RunReport::Outcome::TooLarge:
        return QStringLiteral("tooLarge");
    }
    return {};
}

QVariantMap itemRow(const char *action, const QString &path, const QString &source,
                    const QString &reason)
{
    return {
        {QStringLiteral("action"), QString::fromLatin1(action)},
        {QStringLiteral("path"), path},
        {QStringLiteral("source"), source},
        {QStringLiteral("reason"), reason},
    };
}

} // namespace

RunRecord::RunRecord()
{
    read();
}

void RunRecord::begin(const QString &volume, const QDateTime &now)
{
    m_volume = volume;
    m_summary = {{QStringLiteral("started"), seconds(now)}, {QStringLiteral("volume"), volume}};
    record({});
}

void RunRecord::update(const RunReport &report)
{
    // Each writing waits for the disk.
    const auto isKnown = [this, &report] {
        return m_summary.value(QStringLiteral("copied")) == report.copied &&
               m_summary.value(QStringLiteral("replaced")) == report.replaced &&
               m_summary.value(QStringLiteral("removed")) == report.removed &&
               m_items.size() == qsizetype(report.kept.size() + report.leftOut.size());
    };
    if (!isKnown())
        record(report);
}

void RunRecord::record(const RunReport &report)
{
    const size_t counts[] = {report.copied,      report.replaced,   report.removed,
                             report.kept.size(), report.failures(), report.missing()};
    const QStringList keys = countKeys();
    for (qsizetype i = 0; i < keys.size(); ++i)
        m_summary.insert(keys[i], static_cast<uint>(counts[i]));
    m_summary.insert(QStringLiteral("copiedBytes"),
                     QVariant::fromValue<qulonglong>(report.copiedBytes));
    m_summary.insert(QStringLiteral("outcome"), outcomeText(report.outcome()));
    m_items.clear();
    for (const RunReport::Kept &kept : report.kept)
        m_items.append(
            itemRow("keep", StickFiles::relativeToVolume(kept.path, m_volume), kept.copy, {}));
    for (const RunReport::LeftOut &left : report.leftOut)
        m_items.append(itemRow("leaveOut", StickFiles::relativeToVolume(left.path, m_volume),
                               left.source, left.text));
    write();
}

void RunRecord::end(const RunReport &report, const QDateTime &now)
{
    m_summary.insert(QStringLiteral("ended"), seconds(now));
    record(report);
}

QVariantList RunRecord::items(quint32 first, quint32 count) const
{
    return m_items.mid(first, std::min(count, PlanRows::longestPage));
}

std::optional<RunRecord::Counts> RunRecord::leftOut() const
{
    const auto count = [this](const char *key) {
        return m_summary.value(QLatin1StringView(key)).toUInt();
    };
    if (m_summary.value(QStringLiteral("outcome")) != outcomeText(RunReport::Outcome::Incomplete))
        return std::nullopt;
    return Counts{count("leftOut"), count("copied") + count("replaced") + count("leftOut")};
}

void RunRecord::read()
{
    if (!files().exists(path()))
        return;
    const auto kept = PropertyList::readDictionary(path());
    if (!kept) {
        qCWarning(lcApp).noquote()
            << "The last sync's report can't be read:" << PropertyList::logText(kept.error());
        return;
    }
    m_summary = *kept;
    m_items = m_summary.take(itemsKey()).toList();
    // A list tells neither how wide a number is nor whether it has a sign.
    for (const QString &key : countKeys())
        m_summary.insert(key, m_summary.value(key).toUInt());
    const QString bytes = QStringLiteral("copiedBytes");
    m_summary.insert(bytes, m_summary.value(bytes).toULongLong());
    if (!m_summary.contains(QStringLiteral("ended")))
        m_summary.insert(QStringLiteral("outcome"), outcomeText(RunReport::Outcome::Cancelled));
}

void RunRecord::write() const
{
    QVariantMap kept = m_summary;
    kept.insert(itemsKey(), m_items);
    if (const auto written = PropertyList::writeAtomically(kept, path()); !written)
        qCWarning(lcApp).noquote() << "Can't write" << path() << ":" << written.error().text;
}
