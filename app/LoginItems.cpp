#include "app/LoginItems.h"

#include "app/Log.h"
#include "platform/desktop/Autostart.h"
#include "platform/lists/UserDefaults.h"
#include "util/PathComponents.h"

#include <QVariantMap>

namespace {

const QString loginDomain = QStringLiteral("loginwindow");
const QString itemsKey = QStringLiteral("AutoLaunchedApplicationDictionary");
const QString pathKey = QStringLiteral("Path");

QString lastComponent(const QString &path)
{
    QString rest = path;
    while (rest.endsWith(u'/'))
        rest.chop(1);
    return PathComponents::lastOf(rest);
}

// An alias record is another system's way to find a program that was moved.
QVariantMap newItem(const QString &path, bool hide)
{
    return {{QStringLiteral("Hide"), hide},
            {pathKey, path},
            {QStringLiteral("AliasData"), QByteArray("")}};
}

void removeItems(QVariantList &items, const QString &name)
{
    items.removeIf([&name](const QVariant &item) {
        const QVariant path = item.toMap().value(pathKey);
        return path.typeId() == QMetaType::QString && lastComponent(path.toString()) == name;
    });
}

} // namespace

LoginItems::LoginItems(Bundle helper, QString frontEnd)
    : m_helper(std::move(helper))
    , m_frontEnd(std::move(frontEnd))
{
}

bool LoginItems::editStartupItems(const QString &path, bool enabled, bool hide)
{
    return UserDefaults::standard().editPersistentDomain(loginDomain, [&](QVariantMap &domain) {
        const QVariant found = domain.value(itemsKey);
        if (found.isValid() && found.typeId() != QMetaType::QVariantList) {
            qCWarning(lcApp).noquote() << "The list of login items is left alone:" << itemsKey
                                       << "in the domain" << loginDomain << "is no array";
            return false;
        }
        QVariantList items = found.toList();
        removeItems(items, lastComponent(path));
        if (enabled)
            items.prepend(newItem(path, hide));
        domain.insert(itemsKey, items);
        return true;
    });
}

void LoginItems::setStartOnLogin(bool enabled) const
{
    editStartupItems(m_helper.path(), enabled, false);
    editStartupItems(m_frontEnd, false, false);
    // The user's wish holds even where the list can't be edited.
    const QString entry = QStringLiteral("caravel-helper");
    if (enabled)
        Autostart::add(entry, QStringLiteral("Caravel"), m_helper.executable());
    else
        Autostart::remove(entry);
}
