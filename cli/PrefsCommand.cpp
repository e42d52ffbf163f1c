#include "cli/PrefsCommand.h"

#include "cli/Output.h"
#include "frontend/HelperClient.h"
#include "platform/bus/DistributedNotificationCenter.h"
#include "platform/bus/NamedConnection.h"
#include "platform/lists/UserDefaults.h"
#include "protocol/Protocol.h"
#include "util/Folders.h"
#include "util/Settings.h"

#include <QLocale>

#include <algorithm>
#include <limits>

using namespace std::chrono_literals;

namespace {

bool isDefault(const Settings::Key &key)
{
    return key.value().toString() == key.defaultValue.toString();
}

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

const Settings::Key *findKey(const QString &name)
{
    const auto &keys = Settings::keys();
    const auto found = std::find_if(keys.begin(), keys.end(),
                                    [&](const Settings::Key &key) { return key.name == name; });
    return found == keys.end() ? nullptr : &*found;
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
        object.insert(key.name, entry(key.value(), isDefault(key)));
        const QString mark = isDefault(key) ? QStringLiteral("  (default)") : QString();
        if (!json)
            Output::print(QStringLiteral("%1 = %2%3").arg(key.name, shown(key.value()), mark));
    }
    if (json)
        Output::json(object);
    return Done;
}

ExitStatus showOne(const QString &name, bool json)
{
    const Settings::Key *key = findKey(name);
    const QVariant value = key ? key->value() : UserDefaults::standard().object(name);
    const bool usesDefault = key ? isDefault(*key) : !value.isValid();
    if (json)
        Output::json(QJsonObject{{name, entry(value, usesDefault)}});
    else
        Output::print(shown(value));
    return Done;
}

// The notification makes other processes read the store; the login item needs a word of its own.
void tellOthers(const QString &name)
{
    if (!NamedConnection::busAvailable())
        return;
    DistributedNotificationCenter::defaultCenter().post(
        QStringLiteral("CVPrefsDidChangeNotification"));
    if (name == Settings::startOnLogin.name)
        HelperClient::tellRunningHelper(Protocol::changeStartOnLogin);
    NamedConnection::flush();
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

std::optional<QVariant> boolIn(const QString &text)
{
    static const QStringList yes = {QStringLiteral("yes"), QStringLiteral("true"),
                                    QStringLiteral("on"), QStringLiteral("1")};
    static const QStringList no = {QStringLiteral("no"), QStringLiteral("false"),
                                   QStringLiteral("off"), QStringLiteral("0")};
    const bool isYes = yes.contains(text.toLower());
    return isYes || no.contains(text.toLower()) ? std::optional<QVariant>(isYes) : std::nullopt;
}

// The text as a value of the preference's type and range; nothing for what is none.
std::optional<QVariant> valueIn(const QString &text, const Settings::Key &key)
{
    bool ok = true;
    QVariant value = text;
    switch (key.defaultValue.typeId()) {
    case QMetaType::Bool:
        return boolIn(text);
    case QMetaType::Int:
        value = text.toInt(&ok);
        ok = ok && value.toInt() >= key.range.least && value.toInt() <= key.range.most;
        break;
    case QMetaType::ULongLong:
        value = text.toULongLong(&ok);
        break;
    default:
        ok = key.name != Settings::caravelFolder.name || Folders::isPlace(text);
    }
    return ok ? std::optional(value) : std::nullopt;
}

ExitStatus setOne(const QString &name, const QString &text)
{
    const Settings::Key *key = findKey(name);
    if (!key) {
        Output::error(QStringLiteral("%1 is kept by the helper and can't be set").arg(name));
        return Refused;
    }
    const std::optional<QVariant> value = valueIn(text, *key);
    if (!value) {
        Output::error(QStringLiteral("%1 takes %2, not \"%3\"").arg(name, expected(*key), text));
        return BadUsage;
    }
    UserDefaults &store = UserDefaults::standard();
    store.setObject(name, *value);
    if (!store.synchronize(std::chrono::seconds(1))) {
        Output::error(QStringLiteral("the preferences can't be written"));
        return Refused;
    }
    tellOthers(name);
    return Done;
}

} // namespace

ExitStatus runPrefs(const QStringList &keyAndValue, bool json)
{
    UserDefaults::standard().registerDefaults(Settings::registeredDefaults());
    if (keyAndValue.isEmpty())
        return showAll(json);
    const QString &name = keyAndValue.first();
    if (!findKey(name) && !isReadOnlyKey(name)) {
        Output::error(QStringLiteral("no preference is called \"%1\"").arg(name));
        return Refused;
    }
    return keyAndValue.size() == 1 ? showOne(name, json) : setOne(name, keyAndValue[1]);
}
