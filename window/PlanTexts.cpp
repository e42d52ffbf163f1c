#include "window/PlanTexts.h"

#include "frontend/Rows.h"
#include "platform/core/Localized.h"
#include "util/ByteCount.h"
#include "util/Folders.h"
#include "util/Settings.h"
#include "util/TextFormat.h"
#include "window/Kinds.h"

#include <algorithm>
#include <span>

using Rows::text;

namespace {

struct Named
{
    QStringView key;
    const char *words;
};

quint64 count(const QVariantMap &row, QStringView key)
{
    return row.value(key.toString()).toULongLong();
}

QString counts(const QVariantMap &row, std::span<const Named> named)
{
    QStringList parts;
    for (const Named &each : named) {
        if (const quint64 number = count(row, each.key); number > 0)
            parts.append(filled(localized(each.words), {QString::number(number)}));
    }
    return parts.isEmpty() ? localized("nothing to do") : parts.join(QStringLiteral(", "));
}

QString reasonText(const QString &reason)
{
    static constexpr Named reasons[] = {
        {u"missing", QT_TRANSLATE_NOOP("", "not found on this computer")},
        {u"link", QT_TRANSLATE_NOOP("", "a link on the Memory Stick is in the way")},
        {u"too large", QT_TRANSLATE_NOOP("", "too large for the Memory Stick")},
        {u"notKept", QT_TRANSLATE_NOOP("", "what is there could not be kept")},
        {u"companion", QT_TRANSLATE_NOOP("", "belongs to a file that is left out")},
    };
    const auto *const found = std::ranges::find(reasons, reason, &Named::key);
    return found == std::end(reasons) ? Rows::line(reason) : localized(found->words);
}

struct Action
{
    QStringView name;
    const char *title;
};

constexpr Action actions[] = {
    {u"remove", QT_TRANSLATE_NOOP("", "%@: to remove")},
    {u"replace", QT_TRANSLATE_NOOP("", "%@: to replace")},
    {u"copy", QT_TRANSLATE_NOOP("", "%@: to copy")},
    {u"leaveOut", QT_TRANSLATE_NOOP("", "%@: left out")},
};

} // namespace

QString PlanTexts::totals(const QVariantMap &planSummary)
{
    static constexpr Named named[] = {
        {u"copies", QT_TRANSLATE_NOOP("", "%@ to copy")},
        {u"replacements", QT_TRANSLATE_NOOP("", "%@ to replace")},
        {u"removals", QT_TRANSLATE_NOOP("", "%@ to remove")},
        {u"inPlace", QT_TRANSLATE_NOOP("", "%@ in place")},
        {u"leftOut", QT_TRANSLATE_NOOP("", "%@ left out")},
    };
    static constexpr Named room[] = {
        {u"bytesNeeded", QT_TRANSLATE_NOOP("", "%@ needed")},
        {u"bytesFreed", QT_TRANSLATE_NOOP("", "%@ freed")},
        {u"free", QT_TRANSLATE_NOOP("", "%@ free now")},
    };
    QStringList bytes;
    for (const Named &each : room) {
        if (const quint64 number = count(planSummary, each.key); number > 0)
            bytes.append(filled(localized(each.words),
                                {FileManagerTools::sizeDescriptionForByteCount(number)}));
    }
    QString text = counts(planSummary, named) + u'.';
    if (!bytes.isEmpty())
        text += u' ' + bytes.join(QStringLiteral(", ")) + u'.';
    return text.left(1).toUpper() + text.mid(1);
}

QString PlanTexts::strangers(const QVariantMap &planSummary)
{
    const quint64 number = count(planSummary, u"strangers");
    if (number == 0)
        return {};
    if (!Settings::keepRemovedFiles())
        return filled(localized("Files on the Memory Stick that no sync placed: %@. They will be "
                                "removed, and your settings keep no copies."),
                      {QString::number(number)});
    return filled(
        localized("Files on the Memory Stick that no sync placed: %@. They will be "
                  "removed from it, but are kept: copies of them come to lie in %@."),
        {QString::number(number), Folders::documents() + QStringLiteral("/Removed from PSP")});
}

QString PlanTexts::tooMuch(const QVariantMap &planSummary)
{
    if (planSummary.isEmpty() || planSummary.value(QStringLiteral("fits")).toBool())
        return {};
    return localized("This is too much for the Memory Stick: nothing would be copied. Please "
                     "deselect something.");
}

std::optional<FileGroups::Group> PlanTexts::groupOf(const QString &kind, const QVariantMap &item)
{
    const QString name = text(item, u"action");
    const auto *const action = std::ranges::find(actions, name, &Action::name);
    if (action == std::end(actions))
        return std::nullopt;
    const auto place = static_cast<int>(action - std::begin(actions));
    if (item.value(QStringLiteral("isStranger")).toBool())
        return FileGroups::Group{place,
                                 place == 0 ? localized("To remove, though no sync placed them")
                                            : localized("To replace, though no sync placed them"),
                                 true};
    const Kind *known = kindOf(kind);
    const auto kindPlace = known ? static_cast<int>(known - allKinds().data()) : -1;
    constexpr int perKind = std::size(actions);
    return FileGroups::Group{(kindPlace + 2) * perKind + place,
                             filled(localized(action->title), {known ? known->title() : kind})};
}

FileGroups::Row PlanTexts::rowOf(const QVariantMap &item)
{
    const QString path = text(item, u"path"); // below the volume
    return {path.startsWith(u'/') ? path.sliced(1) : path, count(item, u"bytes"),
            reasonText(text(item, u"reason"))};
}

QString PlanTexts::outcome(const QVariantMap &runSummary)
{
    static constexpr Named outcomes[] = {
        {u"complete", QT_TRANSLATE_NOOP("", "The sync is complete")},
        {u"incomplete", QT_TRANSLATE_NOOP("", "The sync is complete but for what was left out")},
        {u"cancelled", QT_TRANSLATE_NOOP("", "The sync was cancelled")},
        {u"disconnected", QT_TRANSLATE_NOOP("", "The sync was cut short: the PSP went away")},
        {u"full", QT_TRANSLATE_NOOP("", "The sync was cut short: the Memory Stick was full")},
        {u"tooLarge",
         QT_TRANSLATE_NOOP("", "Nothing was copied: the Memory Stick has no room for all of it")},
    };
    static constexpr Named named[] = {
        {u"copied", QT_TRANSLATE_NOOP("", "%@ copied")},
        {u"replaced", QT_TRANSLATE_NOOP("", "%@ replaced")},
        {u"removed", QT_TRANSLATE_NOOP("", "%@ removed")},
        {u"kept", QT_TRANSLATE_NOOP("", "%@ kept on this computer")},
        {u"leftOut", QT_TRANSLATE_NOOP("", "%@ left out")},
        {u"missing", QT_TRANSLATE_NOOP("", "%@ missing")},
    };
    const auto *const found =
        std::ranges::find(outcomes, text(runSummary, u"outcome"), &Named::key);
    const QString how =
        found == std::end(outcomes) ? localized("There was no sync yet") : localized(found->words);
    return filled(QStringLiteral("%@: %@."), {how, counts(runSummary, named)});
}

bool PlanTexts::isComplete(const QVariantMap &runSummary)
{
    return text(runSummary, u"outcome") == u"complete" && count(runSummary, u"missing") == 0;
}

FileGroups::Group PlanTexts::reportGroupOf(const QVariantMap &item)
{
    if (text(item, u"action") == u"keep")
        return {1, localized("Kept on this computer, as no sync had placed them")};
    return {0, localized("Left out"), true};
}

QString PlanTexts::keptFolder(const QVariantMap &item)
{
    if (text(item, u"action") != u"keep")
        return {};
    return text(item, u"source").chopped(text(item, u"path").size());
}
