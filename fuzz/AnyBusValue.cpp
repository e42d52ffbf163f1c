#include "fuzz/AnyBusValue.h"

#include <algorithm>
#include <bit>

namespace {

const char *const texts[] = {"",      "title",  "clicked", "opened",     "closed",
                             "label", "enable", "enabled", "Cancel Sync"};
constexpr char basicTypes[] = "ybnqiuxtdsogh";

std::string textFrom(FuzzedDataProvider &input)
{
    if (input.ConsumeBool())
        return input.PickValueInArray(texts);
    const std::string raw = input.ConsumeRandomLengthString(64);
    gchar *valid = g_utf8_make_valid(raw.c_str(), -1);
    std::string text(valid);
    g_free(valid);
    return text;
}

QByteArray basicTypeFrom(FuzzedDataProvider &input)
{
    return {1, basicTypes[input.ConsumeIntegralInRange<size_t>(0, sizeof basicTypes - 2)]};
}

std::string pathFrom(FuzzedDataProvider &input)
{
    const std::string path = '/' + textFrom(input);
    return g_variant_is_object_path(path.c_str()) ? path : "/";
}

/// Near the numbers of a menu's items most of the time.
int intFrom(FuzzedDataProvider &input)
{
    return input.ConsumeBool() ? input.ConsumeIntegralInRange(-2, 6) : input.ConsumeIntegral<int>();
}

GVariant *basicValueFrom(FuzzedDataProvider &input, char type)
{
    switch (type) {
    case 'y':
        return g_variant_new_byte(input.ConsumeIntegral<guchar>());
    case 'b':
        return g_variant_new_boolean(input.ConsumeBool());
    case 'n':
        return g_variant_new_int16(input.ConsumeIntegral<gint16>());
    case 'q':
        return g_variant_new_uint16(input.ConsumeIntegral<guint16>());
    case 'i':
        return g_variant_new_int32(intFrom(input));
    case 'u':
        return g_variant_new_uint32(input.ConsumeIntegral<guint32>());
    case 'x':
        return g_variant_new_int64(input.ConsumeIntegral<gint64>());
    case 't':
        return g_variant_new_uint64(input.ConsumeIntegral<guint64>());
    case 'd':
        return g_variant_new_double(std::bit_cast<double>(input.ConsumeIntegral<guint64>()));
    case 's':
        return g_variant_new_string(textFrom(input).c_str());
    case 'o':
        return g_variant_new_object_path(pathFrom(input).c_str());
    case 'g':
        return g_variant_new_signature(typeFrom(input, deepestType).constData());
    default: // of no descriptor that was sent along
        return g_variant_new_handle(input.ConsumeIntegral<gint32>());
    }
}

GVariant *containerFrom(FuzzedDataProvider &input, const GVariantType *type, int depth)
{
    GVariantBuilder builder;
    g_variant_builder_init(&builder, type);
    if (g_variant_type_is_array(type)) {
        for (int left = input.ConsumeIntegralInRange(0, 4); left > 0; --left)
            g_variant_builder_add_value(&builder,
                                        valueFrom(input, g_variant_type_element(type), depth - 1));
    } else {
        for (const GVariantType *member = g_variant_type_first(type); member;
             member = g_variant_type_next(member))
            g_variant_builder_add_value(&builder, valueFrom(input, member, depth - 1));
    }
    return g_variant_builder_end(&builder);
}

} // namespace

QByteArray typeFrom(FuzzedDataProvider &input, int depth)
{
    switch (input.ConsumeIntegralInRange(0, depth > 0 ? 5 : 0)) {
    case 0:
        return basicTypeFrom(input);
    case 1:
        return "v";
    case 2:
        return "a" + typeFrom(input, depth - 1);
    case 3:
        return "a{" + basicTypeFrom(input) + typeFrom(input, depth - 1) + '}';
    case 4:
        return "a{sv}";
    default: {
        QByteArray members = typeFrom(input, depth - 1);
        for (int left = input.ConsumeIntegralInRange(0, 2); left > 0; --left)
            members += typeFrom(input, depth - 1);
        return '(' + members + ')';
    }
    }
}

GVariant *valueFrom(FuzzedDataProvider &input, const GVariantType *type, int depth)
{
    if (g_variant_type_is_variant(type)) {
        const QByteArray inner = depth > 0 ? typeFrom(input, deepestType) : QByteArray("y");
        return g_variant_new_variant(
            valueFrom(input, G_VARIANT_TYPE(inner.constData()), depth - 1));
    }
    return g_variant_type_is_container(type)
               ? containerFrom(input, type, depth)
               : basicValueFrom(input, *g_variant_type_peek_string(type));
}

// --- What they are in plain types

namespace {

QString keyOf(GVariant *value)
{
    return g_variant_is_of_type(value, G_VARIANT_TYPE_BYTE)
               ? QString::number(g_variant_get_byte(value))
               : plainOf(value).toString();
}

QVariantMap plainMapOf(GVariant *value)
{
    QVariantMap map;
    for (gsize i = 0; i < g_variant_n_children(value); ++i) {
        const BusValue entry = childOf(value, i);
        map.insert(keyOf(childOf(entry.get(), 0).get()), plainOf(childOf(entry.get(), 1).get()));
    }
    return map;
}

QVariant plainArrayOf(GVariant *value)
{
    if (g_variant_is_of_type(value, G_VARIANT_TYPE_DICTIONARY))
        return plainMapOf(value);
    const QVariantList list = plainChildrenOf(value);
    if (g_variant_is_of_type(value, G_VARIANT_TYPE_STRING_ARRAY))
        return QVariant(list).toStringList();
    if (!g_variant_is_of_type(value, G_VARIANT_TYPE_BYTESTRING))
        return list;
    QByteArray bytes;
    for (const QVariant &byte : list)
        bytes.append(static_cast<char>(byte.value<uchar>()));
    return bytes;
}

bool areSame(const QVariantList &first, const QVariantList &second)
{
    return std::equal(first.begin(), first.end(), second.begin(), second.end(),
                      [](const QVariant &a, const QVariant &b) { return areSame(a, b); });
}

} // namespace

BusValue childOf(GVariant *value, gsize index)
{
    return BusValue(g_variant_get_child_value(value, index));
}

QVariantList plainChildrenOf(GVariant *value)
{
    QVariantList list;
    for (gsize i = 0; i < g_variant_n_children(value); ++i)
        list.append(plainOf(childOf(value, i).get()));
    return list;
}

QVariant plainOf(GVariant *value)
{
    switch (g_variant_classify(value)) {
    case G_VARIANT_CLASS_BOOLEAN:
        return bool(g_variant_get_boolean(value));
    case G_VARIANT_CLASS_BYTE:
        return QVariant::fromValue(g_variant_get_byte(value));
    case G_VARIANT_CLASS_INT16:
        return QVariant::fromValue(g_variant_get_int16(value));
    case G_VARIANT_CLASS_UINT16:
        return QVariant::fromValue(g_variant_get_uint16(value));
    case G_VARIANT_CLASS_INT32:
        return g_variant_get_int32(value);
    case G_VARIANT_CLASS_UINT32:
        return g_variant_get_uint32(value);
    case G_VARIANT_CLASS_INT64:
        return qlonglong(g_variant_get_int64(value));
    case G_VARIANT_CLASS_UINT64:
        return qulonglong(g_variant_get_uint64(value));
    case G_VARIANT_CLASS_DOUBLE:
        return g_variant_get_double(value);
    case G_VARIANT_CLASS_STRING:
    case G_VARIANT_CLASS_OBJECT_PATH:
    case G_VARIANT_CLASS_SIGNATURE:
        return QString::fromUtf8(g_variant_get_string(value, nullptr));
    case G_VARIANT_CLASS_VARIANT:
        return plainOf(childOf(value, 0).get());
    case G_VARIANT_CLASS_ARRAY:
        return plainArrayOf(value);
    case G_VARIANT_CLASS_TUPLE:
        return plainChildrenOf(value);
    default:
        return {};
    }
}

QVariant sentAs(const QVariant &plain)
{
    if (plain.typeId() == QMetaType::QVariantMap) {
        QVariantMap map = plain.toMap();
        for (QVariant &value : map)
            value = sentAs(value);
        map.removeIf([](const auto &entry) { return !entry.value().isValid(); });
        return map;
    }
    if (plain.typeId() != QMetaType::QVariantList)
        return plain;
    QVariantList list = plain.toList();
    for (QVariant &value : list)
        value = sentAs(value);
    list.removeIf([](const QVariant &value) { return !value.isValid(); });
    return list;
}

bool areSame(const QVariant &first, const QVariant &second)
{
    if (first.typeId() != second.typeId())
        return false;
    switch (first.typeId()) {
    case QMetaType::QVariantMap:
        return first.toMap().keys() == second.toMap().keys() &&
               areSame(first.toMap().values(), second.toMap().values());
    case QMetaType::QVariantList:
        return areSame(first.toList(), second.toList());
    case QMetaType::Double:
        return std::bit_cast<quint64>(first.toDouble()) ==
               std::bit_cast<quint64>(second.toDouble());
    default:
        return first == second;
    }
}
