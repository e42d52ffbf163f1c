#include "window/KindTexts.h"

#include "frontend/Rows.h"
#include "platform/core/Localized.h"
#include "protocol/Protocol.h"
#include "util/Settings.h"
#include "util/TextFormat.h"

#include <QLocale>

#include <algorithm>

namespace {

constexpr QSize rowIcon{16, 16};
constexpr QSize thumbnail{64, 48};
constexpr QSize saveIcon{72, 40};

/// Of the chosen source.
QString whyEmpty(const QVariantMap &source)
{
    const QString title = sourceTitle(source);
    const QString place = Rows::line(Rows::text(source, u"place"));
    if (!source.value(QStringLiteral("found")).toBool())
        return filled(localized("Nothing of %@ was found on this computer. It would lie here: %@"),
                      {title, place});
    if (source.value(QStringLiteral("entries")).toInt() < 0)
        return filled(localized("What %@ has written can't be read; it may be damaged: %@"),
                      {title, place});
    return filled(localized("%@ has nothing to choose from: %@"), {title, place});
}

EmptyList::Other offerOf(const QVariantMap &source)
{
    const QString title = sourceTitle(source);
    const int entries = source.value(QStringLiteral("entries")).toInt();
    const QString text =
        entries < 0 ? filled(localized("Take %@"), {title})
                    : filled(localized("Take %@ (%@)"), {title, QLocale().toString(entries)});
    return {text, source.value(QStringLiteral("value")).toInt()};
}

} // namespace

// The helper's are the English ones of the settings.
QString sourceTitle(const QVariantMap &source)
{
    const QByteArray title = Rows::line(Rows::text(source, u"title")).toUtf8();
    return localized(title.constData());
}

KindTexts KindTexts::of(const QString &saveName)
{
    if (saveName == u"Music")
        return {saveName,
                Settings::syncMusic.name,
                Settings::musicSource.name,
                {localized("Playlist"), localized("Songs")},
                {},
                rowIcon,
                true};
    if (saveName == u"Photos")
        return {saveName,
                Settings::syncPhotos.name,
                Settings::photosSource.name,
                {localized("Album"), localized("Photos")},
                {},
                rowIcon,
                true};
    if (saveName == u"Bookmarks")
        return {saveName,
                Settings::syncBookmarks.name,
                Settings::bookmarkSource.name,
                {localized("Folder"), localized("Bookmarks")},
                {},
                rowIcon,
                true};
    if (saveName == u"Movies")
        return {saveName,
                Settings::syncMovies.name,
                {},
                {localized("Movie"), localized("Details")},
                localized("There is no movie yet. Add one with the button, or drop its file here: "
                          "it is converted to what the PSP plays."),
                thumbnail,
                true};
    return {saveName,
            Settings::syncBackup.name,
            {},
            {localized("Game"), localized("Game save"), localized("Last kept")},
            localized("No game save is kept yet. They are copied from the PSP at each sync."),
            saveIcon,
            false};
}

const Protocol::List &KindTexts::list() const
{
    return *std::ranges::find(Protocol::lists, saveName, &Protocol::List::saveName);
}

EmptyList EmptyList::of(const QString &saveName, const QVariantList &sources)
{
    EmptyList empty;
    for (const QVariant &each : sources) {
        const QVariantMap source = each.toMap();
        if (Rows::text(source, u"kind") != saveName)
            continue;
        if (source.value(QStringLiteral("chosen")).toBool())
            empty.text = whyEmpty(source);
        else if (source.value(QStringLiteral("found")).toBool())
            empty.others.append(offerOf(source));
    }
    if (empty.text.isEmpty())
        empty.text = localized("The source that is chosen in the settings is unknown.");
    if (empty.others.isEmpty())
        empty.text += u'\n' + localized("Nothing else was found on this computer.");
    return empty;
}
