#include "window/Kinds.h"

#include "platform/core/Localized.h"
#include "platform/lists/Bundle.h"

#include <algorithm>

namespace {

// The colours are those of resources/icons/kinds.
constexpr Kind kinds[] = {
    {u"Music", QT_TRANSLATE_NOOP("", "Music"), 0xff2f72cc},
    {u"Photos", QT_TRANSLATE_NOOP("", "Photos"), 0xff2b8a50},
    {u"Movies", QT_TRANSLATE_NOOP("", "Movies"), 0xffc05a10},
    {u"Bookmarks", QT_TRANSLATE_NOOP("", "Bookmarks"), 0xff8048b8},
    {u"Contacts", QT_TRANSLATE_NOOP("", "Contacts"), 0xff0e7f8a},
    {u"Backup", QT_TRANSLATE_NOOP("", "Game Saves"), 0xffb83660},
};

} // namespace

QString Kind::title() const
{
    return localized(titleKey);
}

QIcon Kind::picture() const
{
    const QString file = Bundle::main().resourcePath() + QStringLiteral("/Kind") +
                         saveName.toString() + QStringLiteral(".png");
    QIcon picture(file);
    picture.addFile(file, {}, QIcon::Selected); // else the selection's colour would lie over it
    return picture;
}

std::span<const Kind> allKinds()
{
    return kinds;
}

const Kind *kindOf(QStringView saveName)
{
    const auto *const found = std::ranges::find(kinds, saveName, &Kind::saveName);
    return found == std::end(kinds) ? nullptr : found;
}
