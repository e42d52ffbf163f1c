#include "cli/PrefsCommand.h"

#include "cli/Output.h"
#include "frontend/Preferences.h"
#include "platform/lists/UserDefaults.h"
#include "protocol/Protocol.h"
#include "util/Settings.h"

#include <QLocale>

#include <algorithm>
#include <limits>

namespace {

QString shown(const QVariant &value)
{
    if (value.typeId() == QMetaType::Bool)
        return Output::yesNo(value.toBool());
    if (value.typeId() == QMetaType::QDateTime)
        return QLocale().toString(value.toDateTime().toLocalTime(), QLocale::ShortFormat);
    if (value.typeId() == QMetaType::QVariantList || value.typeId() == QMetaType::QStringList)
        return value.toStringList().join(QStringLiteral(", "));
    return value.toString();
}

// Kept by the helper, without a default: shown, never set here.
bool isReadOnlyKey(const QString &name)
{
    const auto isSelectionOf = [&name](const Protocol::List &list) {
        return name == Settings::selectionKey(list.saveName.toString());
    };
    return name == Settings::lastSync.name || std::ranges::any_of(Protocol::lists, isSelectionOf);
}

QJsonObject entry(const QVariant &value, bool isDefaultValue)
{
    return {{QStringLiteral("value"), QJsonValue::fromVariant(value)},
            {QStringLiteral("default"), isDefaultValue}};
}

ExitStatus showAll(bool json)
{
    QJsonObject object;
    for (const Settings::Key &key : Settings::keys()) {
        object.insert(key.name, entry(key.value(), Preferences::isDefault(key)));
        const QString mark =
            Preferences::isDefault(key) ? QStringLiteral("  (default)") : QString();
        if (!json)
            Output::print(QStringLiteral("%1 = %2%3").arg(key.name, shown(key.value()), mark));
    }
    if (json)
        Output::json(object);
    return Done;
}

ExitStatus showOne(const QString &name, bool json)
{
    const Settings::Key *key = Preferences::find(name);
    const QVariant value = key ? key->value() : UserDefaults::standard().object(name);
    const bool usesDefault = key ? Preferences::isDefault(*key) : !value.isValid();
    if (json)
        Output::json(QJsonObject{{name, entry(value, usesDefault)}});
    else
        Output::print(shown(value));
    return Done;
}

QString expected(const Settings::Key &key)
{
    switch (key.defaultValue.typeId()) {
    case QMetaType::Bool:
        return QStringLiteral("yes or no");
    case QMetaType::Int:
        if (key.range.most < std::numeric_limits<int>::max())
            return QStringLiteral("a whole number from %1 to %2")
                .arg(key.range.least)
                .arg(key.range.most);
        [[fallthrough]];
    case QMetaType::ULongLong:
        return QStringLiteral("a whole number from 0");
    default:
        return QStringLiteral("a full path, or one that begins with \"~/\"");
    }
}

ExitStatus setOne(const QString &name, const QString &text)
{
    const Settings::Key *key = Preferences::find(name);
    if (!key) {
        Output::error(QStringLiteral("%1 is kept by the helper and can't be set").arg(name));
        return Refused;
    }
    const std::optional<QVariant> value = Preferences::valueIn(text, *key);
    if (!value) {
        Output::error(QStringLiteral("%1 takes %2, not \"%3\"").arg(name, expected(*key), text));
        return BadUsage;
    }
    if (!Preferences::set(name, *value)) {
        Output::error(QStringLiteral("the preferences can't be written"));
        return Refused;
    }
    return Done;
}

} // namespace

ExitStatus runPrefs(const QStringList &keyAndValue, bool json)
{
    Preferences::begin();
    if (keyAndValue.isEmpty())
        return showAll(json);
    const QString &name = keyAndValue.first();
    if (!Preferences::find(name) && !isReadOnlyKey(name)) {
        Output::error(QStringLiteral("no preference is called \"%1\"").arg(name));
        return Refused;
    }
    return keyAndValue.size() == 1 ? showOne(name, json) : setOne(name, keyAndValue[1]);
}
