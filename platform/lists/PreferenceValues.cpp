#include "platform/lists/own/PreferenceValues.h"

#include <QDateTime>

#include <limits>

namespace {

template <typename Number>
Number saturated(double value)
{
    using Limits = std::numeric_limits<Number>;
    // The highest number rounds up as a double: what reaches that is out of range.
    if (value >= static_cast<double>(Limits::max()))
        return Limits::max();
    if (value <= static_cast<double>(Limits::lowest()))
        return Limits::lowest();
    return value == value ? static_cast<Number>(value) : 0; // a NaN is no number
}

/// A whole number with its sign apart, so that both 64-bit ranges fit.
struct Whole
{
    bool negative = false;
    quint64 magnitude = 0;
};

Whole wholeOf(const QString &text)
{
    const QStringView trimmed = QStringView(text).trimmed();
    const bool hasSign = trimmed.startsWith(u'-') || trimmed.startsWith(u'+');
    Whole whole{trimmed.startsWith(u'-'), 0};
    for (const QChar character : trimmed.sliced(hasSign ? 1 : 0)) {
        if (character < u'0' || character > u'9')
            break;
        const quint64 digit = quint64(character.unicode() - u'0');
        constexpr quint64 highest = std::numeric_limits<quint64>::max();
        whole.magnitude =
            whole.magnitude > (highest - digit) / 10 ? highest : whole.magnitude * 10 + digit;
    }
    return whole;
}

Whole wholeOf(qint64 number)
{
    return {number < 0, number < 0 ? 0 - quint64(number) : quint64(number)};
}

Whole wholeOf(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return {false, value.toBool() ? 1U : 0U};
    case QMetaType::LongLong:
        return wholeOf(value.toLongLong());
    case QMetaType::ULongLong:
        return {false, value.toULongLong()};
    case QMetaType::Double:
        return value.toDouble() < 0 ? wholeOf(saturated<qint64>(value.toDouble()))
                                    : Whole{false, saturated<quint64>(value.toDouble())};
    case QMetaType::QString:
        return wholeOf(value.toString());
    default:
        return {};
    }
}

QVariant storedList(const QVariantList &values)
{
    QVariantList stored;
    for (const QVariant &value : values) {
        if (const QVariant entry = PreferenceValues::asStored(value); entry.isValid())
            stored.append(entry);
    }
    return stored;
}

QVariant storedMap(const QVariantMap &values)
{
    QVariantMap stored;
    for (auto entry = values.begin(); entry != values.end(); ++entry) {
        if (const QVariant value = PreferenceValues::asStored(entry.value()); value.isValid())
            stored.insert(entry.key(), value);
    }
    return stored;
}

QVariant storedDate(const QDateTime &date)
{
    const bool fits =
        date.isValid() && date.toUTC().date().year() > 0 && date.toUTC().date().year() < 10000;
    return fits ? QVariant(QDateTime::fromSecsSinceEpoch(date.toSecsSinceEpoch(), Qt::UTC))
                : QVariant();
}

} // namespace

namespace PreferenceValues {

bool toBool(const QVariant &value)
{
    if (value.typeId() == QMetaType::Double)
        return value.toDouble() != 0;
    if (value.typeId() == QMetaType::QString) {
        const QString text = value.toString().trimmed().left(1).toLower();
        if (text == u"y" || text == u"t")
            return true;
    }
    return wholeOf(value).magnitude != 0;
}

qint64 toInteger(const QVariant &value)
{
    const Whole whole = wholeOf(value);
    constexpr quint64 highest = quint64(std::numeric_limits<qint64>::max());
    if (whole.magnitude > highest)
        return whole.negative ? std::numeric_limits<qint64>::min() : qint64(highest);
    return whole.negative ? -qint64(whole.magnitude) : qint64(whole.magnitude);
}

quint64 toUnsigned(const QVariant &value)
{
    const Whole whole = wholeOf(value);
    return whole.negative ? 0 : whole.magnitude;
}

QString toText(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    case QMetaType::QString:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
        return value.toString();
    default:
        return {};
    }
}

QVariant asStored(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QVariantMap:
        return storedMap(value.toMap());
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        return storedList(value.toList());
    case QMetaType::QDateTime:
        return storedDate(value.toDateTime());
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
        return value.toLongLong();
    case QMetaType::ULong:
    case QMetaType::ULongLong: {
        const qulonglong number = value.toULongLong();
        const bool fits = number <= qulonglong(std::numeric_limits<qlonglong>::max());
        return fits ? QVariant(qlonglong(number)) : QVariant(number);
    }
    case QMetaType::Float:
        return value.toDouble();
    case QMetaType::Bool:
    case QMetaType::LongLong:
    case QMetaType::Double:
    case QMetaType::QString:
    case QMetaType::QByteArray:
        return value;
    default:
        return {};
    }
}

bool areEqual(const QVariant &first, const QVariant &second)
{
    return first.typeId() == second.typeId() && first == second;
}

void apply(const QVariantMap &changes, QVariantMap &values)
{
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        if (change.value().isValid())
            values.insert(change.key(), change.value());
        else
            values.remove(change.key());
    }
}

bool changeAny(const QVariantMap &changes, const QVariantMap &values)
{
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        if (!areEqual(values.value(change.key()), change.value()))
            return true;
    }
    return false;
}

} // namespace PreferenceValues
