#include "app/PlanRows.h"

#include "sync/StickFiles.h"

#include <algorithm>

namespace PlanRows {

namespace {

using Action = PlannedItem::Action;
using Reason = PlannedItem::Reason;

struct Counts
{
    uint copies = 0;
    uint replacements = 0;
    uint removals = 0;
    uint strangers = 0;
    uint inPlace = 0;
    uint leftOut = 0;

    void add(const Counts &other)
    {
        copies += other.copies;
        replacements += other.replacements;
        removals += other.removals;
        strangers += other.strangers;
        inPlace += other.inPlace;
        leftOut += other.leftOut;
    }

    QVariantMap row() const
    {
        return {
            {QStringLiteral("copies"), copies},     {QStringLiteral("replacements"), replacements},
            {QStringLiteral("removals"), removals}, {QStringLiteral("strangers"), strangers},
            {QStringLiteral("inPlace"), inPlace},   {QStringLiteral("leftOut"), leftOut},
        };
    }
};

/// What becomes of an item, as the user sees it: one that is never copied though it stands where a
/// copy would is left out.
QString actionOf(const PlannedItem &item)
{
    if (item.action == Action::InPlace)
        return QStringLiteral("inPlace");
    if (!item.isCopied())
        return QStringLiteral("leaveOut");
    return item.action == Action::Copy ? QStringLiteral("copy") : QStringLiteral("replace");
}

bool isCounted(const PlannedRemoval &removal)
{
    return !removal.isEmptiedFolder;
}

Counts counted(const KindPlan &kind)
{
    Counts counts;
    for (const PlannedItem &item : kind.items) {
        if (item.action == Action::InPlace)
            ++counts.inPlace;
        else if (!item.isCopied())
            ++counts.leftOut;
        else
            ++(item.action == Action::Copy ? counts.copies : counts.replacements);
        counts.strangers += item.isStranger;
    }
    for (const PlannedRemoval &removal : kind.removals) {
        counts.removals += isCounted(removal);
        counts.strangers += removal.isStranger;
    }
    return counts;
}

QVariant bytes(quint64 count)
{
    return QVariant::fromValue<qulonglong>(count);
}

QVariantMap kindRow(const KindPlan &kind, const Counts &counts)
{
    QVariantMap row = counts.row();
    row.insert(QStringLiteral("name"), kind.saveName);
    row.insert(QStringLiteral("title"), kind.moduleName);
    row.insert(QStringLiteral("bytes"), bytes(kind.syncEstimateSize));
    row.insert(QStringLiteral("bytesNeeded"), bytes(kind.clusterBytes()));
    row.insert(QStringLiteral("bytesFreed"), bytes(kind.freedBytes()));
    return row;
}

QString reasonText(Reason reason)
{
    switch (reason) {
    case Reason::None:
        return {};
    case Reason::Missing:
        return QStringLiteral("missing");
    case Reason::Link:
        return QStringLiteral("link");
    case Reason::TooLarge:
        return QStringLiteral("too large");
    case Reason::NotKept:
        return QStringLiteral("notKept");
    case Reason::Companion:
        return QStringLiteral("companion");
    }
    return {};
}

QVariantMap itemRow(const PlannedItem &item, const QString &volume)
{
    return {
        {QStringLiteral("action"), actionOf(item)},
        {QStringLiteral("path"), StickFiles::relativeToVolume(item.item.destination, volume)},
        {QStringLiteral("source"), item.item.source},
        {QStringLiteral("description"), item.item.description},
        {QStringLiteral("bytes"), bytes(item.item.size)},
        {QStringLiteral("isStranger"), item.isStranger},
        {QStringLiteral("reason"), reasonText(item.reason)},
    };
}

QVariantMap removalRow(const PlannedRemoval &removal, const QString &volume)
{
    return {
        {QStringLiteral("action"), QStringLiteral("remove")},
        {QStringLiteral("path"), StickFiles::relativeToVolume(removal.path, volume)},
        {QStringLiteral("source"), QString()},
        {QStringLiteral("description"), QString()},
        {QStringLiteral("bytes"), bytes(removal.bytes)},
        {QStringLiteral("isStranger"), removal.isStranger},
        {QStringLiteral("reason"), QString()},
    };
}

/// Takes the rows of one page out of all that pass by.
class Page
{
public:
    Page(quint32 first, quint32 count)
        : m_skip(first)
        , m_left(std::min(count, longestPage))
    {
    }

    template <typename MakeRow>
    void pass(MakeRow makeRow)
    {
        if (m_skip > 0) {
            --m_skip;
        } else if (m_left > 0) {
            --m_left;
            m_rows.append(makeRow());
        }
    }

    bool isFull() const { return m_left == 0; }
    QVariantList take() { return std::move(m_rows); }

private:
    quint32 m_skip;
    quint32 m_left;
    QVariantList m_rows;
};

} // namespace

QVariantMap summary(const SyncPlan &plan)
{
    Counts all;
    QVariantList kinds;
    for (const KindPlan &kind : plan.kinds) {
        const Counts counts = counted(kind);
        all.add(counts);
        kinds.append(kindRow(kind, counts));
    }
    QVariantMap summary = all.row();
    summary.insert(QStringLiteral("bytesNeeded"), bytes(plan.clusterBytes()));
    summary.insert(QStringLiteral("bytesFreed"), bytes(plan.freedBytes()));
    summary.insert(QStringLiteral("free"), bytes(plan.space.free));
    summary.insert(QStringLiteral("capacity"), bytes(plan.space.size));
    summary.insert(QStringLiteral("fits"), plan.fits());
    summary.insert(QStringLiteral("kinds"), kinds);
    return summary;
}

QVariantList items(const SyncPlan &plan, const QString &saveName, quint32 first, quint32 count)
{
    Page page(first, count);
    const auto isMeant = [&saveName](const KindPlan &kind) {
        return saveName.isEmpty() || kind.saveName == saveName;
    };
    for (const KindPlan &kind : plan.kinds) {
        for (size_t i = 0; isMeant(kind) && i < kind.removals.size() && !page.isFull(); ++i) {
            if (isCounted(kind.removals[i]))
                page.pass([&] { return removalRow(kind.removals[i], plan.volume); });
        }
    }
    for (const KindPlan &kind : plan.kinds) {
        for (size_t i = 0; isMeant(kind) && i < kind.items.size() && !page.isFull(); ++i)
            page.pass([&] { return itemRow(kind.items[i], plan.volume); });
    }
    return page.take();
}

} // namespace PlanRows
