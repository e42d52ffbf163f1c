#include "window/Capacity.h"

#include "platform/core/Localized.h"
#include "util/ByteCount.h"
#include "util/TextFormat.h"
#include "window/Kinds.h"

#include <algorithm>

namespace {

quint64 bytes(const QVariantMap &row, const char *key)
{
    return row.value(QString::fromLatin1(key)).toULongLong();
}

quint64 less(quint64 from, quint64 count)
{
    return from - std::min(from, count);
}

QString size(quint64 count)
{
    return FileManagerTools::sizeDescriptionForByteCount(count);
}

} // namespace

Capacity Capacity::of(const QVariantMap &stick, const QVariantMap &plan)
{
    Capacity capacity;
    capacity.total = bytes(stick, "capacity");
    capacity.free = std::min(bytes(stick, "free"), capacity.total);
    if (capacity.total == 0)
        return capacity;
    if (!plan.isEmpty()) {
        const quint64 room = bytes(plan, "free") + bytes(plan, "bytesFreed");
        const quint64 needed = bytes(plan, "bytesNeeded");
        capacity.free = std::min(less(room, needed), capacity.total);
        capacity.missing = less(needed, room);
        capacity.fits = plan.value(QStringLiteral("fits")).toBool() && capacity.missing == 0;
    }
    quint64 others = less(capacity.total + capacity.missing, capacity.free);
    for (const QVariant &each : plan.value(QStringLiteral("kinds")).toList()) {
        const QVariantMap row = each.toMap();
        const Part part{row.value(QStringLiteral("name")).toString(),
                        std::min(bytes(row, "bytes"), others)};
        if (part.bytes == 0 || !kindOf(part.kind))
            continue;
        capacity.parts.append(part);
        others -= part.bytes;
    }
    std::ranges::sort(capacity.parts, {}, [](const Part &part) { return kindOf(part.kind); });
    if (others > 0)
        capacity.parts.append({{}, others});
    return capacity;
}

QString Capacity::partInWords(const Part &part)
{
    const Kind *kind = kindOf(part.kind);
    return (kind ? kind->title() : localized("Others")) + u' ' + size(part.bytes);
}

QString Capacity::inWords() const
{
    if (total == 0)
        return localized("No PSP is connected.");
    QStringList words;
    for (const Part &part : parts)
        words.append(partInWords(part));
    if (missing > 0)
        words.append(filled(localized("%@ too much for %@"), {size(missing), size(total)}));
    else if (!fits)
        words.append(localized("too much for the Memory Stick"));
    else
        words.append(filled(localized("%@ free of %@"), {size(free), size(total)}));
    return words.join(QStringLiteral(", "));
}
