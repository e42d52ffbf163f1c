#include "platform/bus/own/BusValues.h"

#include "platform/bus/RemoteObject.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusSignature>
#include <QDBusUnixFileDescriptor>
#include <QDBusVariant>
#include <QHash>

#include <algorithm>

namespace {

using Rows = QList<QVariantMap>;

/// A byte is a number, and would become the character of that number.
QString keyText(const QVariant &key)
{
    return key.userType() == QMetaType::UChar ? QString::number(key.toUInt()) : key.toString();
}

QVariantMap readMap(const QDBusArgument &argument)
{
    QVariantMap map;
    argument.beginMap();
    while (!argument.atEnd()) {
        argument.beginMapEntry();
        const QString key = keyText(BusValues::toPlain(argument.asVariant()));
        map.insert(key, BusValues::toPlain(argument.asVariant()));
        argument.endMapEntry();
    }
    argument.endMap();
    return map;
}

QVariantList readElements(const QDBusArgument &argument)
{
    QVariantList elements;
    while (!argument.atEnd())
        elements.append(BusValues::toPlain(argument.asVariant()));
    return elements;
}

QVariant readArgument(const QDBusArgument &argument)
{
    QVariantList elements;
    switch (argument.currentType()) {
    case QDBusArgument::MapType:
        return readMap(argument);
    case QDBusArgument::ArrayType:
        argument.beginArray();
        elements = readElements(argument);
        argument.endArray();
        return elements;
    case QDBusArgument::StructureType:
        argument.beginStructure();
        elements = readElements(argument);
        argument.endStructure();
        return elements;
    default:
        return BusValues::toPlain(argument.asVariant());
    }
}

QVariantMap plainMap(QVariantMap map)
{
    for (QVariant &value : map)
        value = BusValues::toPlain(value);
    return map;
}

/// Without what the bus has no type for: it would end the process over it.
QVariant sendable(const QVariant &value);

QVariantMap sendable(const QVariantMap &map)
{
    QVariantMap entries;
    for (auto entry = map.begin(); entry != map.end(); ++entry) {
        if (const QVariant value = sendable(entry.value()); value.isValid())
            entries.insert(entry.key(), value);
    }
    return entries;
}

QVariant rowsFrom(const QVariantList &list)
{
    static const QMetaType registered = qDBusRegisterMetaType<Rows>();
    Q_UNUSED(registered)
    Rows rows;
    for (const QVariant &row : list)
        rows.append(sendable(row.toMap()));
    return QVariant::fromValue(rows);
}

// Maps alone are rows, as lists within rows are by the protocol.
QVariant sendable(const QVariantList &list)
{
    const auto isMap = [](const QVariant &element) {
        return element.userType() == QMetaType::QVariantMap;
    };
    if (std::ranges::all_of(list, isMap))
        return rowsFrom(list);
    QVariantList elements;
    for (const QVariant &element : list) {
        if (const QVariant value = sendable(element); value.isValid())
            elements.append(value);
    }
    return elements;
}

QVariant sendable(const QVariant &value)
{
    if (value.userType() == QMetaType::QVariantMap)
        return sendable(value.toMap());
    if (value.userType() == QMetaType::QVariantList)
        return sendable(value.toList());
    return QDBusMetaType::typeToSignature(value.metaType()) ? value : QVariant();
}

using Converter = QVariant (*)(const QVariant &);

template <typename T>
QVariant converted(const QVariant &value)
{
    return QVariant::fromValue(value.value<T>());
}

/// Null for a type that RemoteMethod doesn't name.
Converter converterTo(const QString &signature)
{
    static const QHash<QString, Converter> converters{
        {QStringLiteral("b"), converted<bool>},
        {QStringLiteral("i"), converted<int>},
        {QStringLiteral("u"), converted<uint>},
        {QStringLiteral("t"), converted<qulonglong>},
        {QStringLiteral("d"), converted<double>},
        {QStringLiteral("s"), converted<QString>},
        {QStringLiteral("as"), converted<QStringList>},
        {QStringLiteral("a{sv}"),
         [](const QVariant &value) -> QVariant {
             return sendable(value.toMap());
         }},
        {QStringLiteral("aa{sv}"),
         [](const QVariant &value) {
             return rowsFrom(value.toList());
         }},
        {QStringLiteral("o"),
         [](const QVariant &value) {
             return QVariant::fromValue(QDBusObjectPath(value.toString()));
         }},
    };
    return converters.value(signature);
}

} // namespace

QVariant BusValues::toPlain(const QVariant &value)
{
    const int type = value.userType();
    if (type == qMetaTypeId<QDBusArgument>())
        return readArgument(value.value<QDBusArgument>());
    if (type == qMetaTypeId<QDBusVariant>())
        return toPlain(value.value<QDBusVariant>().variant());
    if (type == qMetaTypeId<QDBusObjectPath>())
        return value.value<QDBusObjectPath>().path();
    if (type == qMetaTypeId<QDBusSignature>())
        return value.value<QDBusSignature>().signature();
    // Where the bus passes no descriptors, they come as something that has no type on it.
    if (type == qMetaTypeId<QDBusUnixFileDescriptor>() ||
        !QDBusMetaType::typeToSignature(value.metaType()))
        return {};
    if (type == QMetaType::QVariantMap)
        return plainMap(value.toMap());
    if (type == QMetaType::QVariantList)
        return toPlain(value.toList());
    return value;
}

QVariantList BusValues::toPlain(const QVariantList &values)
{
    QVariantList plain;
    for (const QVariant &value : values)
        plain.append(toPlain(value));
    return plain;
}

bool BusValues::isType(const QString &signature)
{
    return converterTo(signature) != nullptr;
}

QVariant BusValues::toBus(const QVariant &value, const QString &signature)
{
    return converterTo(signature)(value);
}

QVariant BusValues::toBus(const QVariant &value)
{
    if (value.userType() == qMetaTypeId<ObjectPath>())
        return toBus(value.value<ObjectPath>().path, QStringLiteral("o"));
    if (value.userType() == QMetaType::QVariantList)
        return rowsFrom(value.toList());
    if (value.userType() == QMetaType::QVariantMap)
        return sendable(value.toMap());
    return value;
}

QVariantList BusValues::toBus(const QVariantList &values)
{
    QVariantList typed;
    for (const QVariant &value : values)
        typed.append(toBus(value));
    return typed;
}
