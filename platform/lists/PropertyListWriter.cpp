#include "platform/lists/PropertyList.h"

#include <QDateTime>
#include <QStringList>
#include <QXmlStreamWriter>

#include <cmath>
#include <optional>

namespace {

/// No XML document can hold these, not even escaped: with them in it the whole file would be
/// unreadable, without them one name looks odd.
bool fitsXml(QChar character)
{
    const char16_t unit = character.unicode();
    if (unit < 0x20)
        return unit == '\t' || unit == '\n' || unit == '\r';
    return unit != 0xFFFE && unit != 0xFFFF;
}

QString xmlText(const QString &text)
{
    QString kept = QString::fromUtf8(text.toUtf8()); // replaces halves of surrogate pairs
    kept.removeIf([](QChar character) { return !fitsXml(character); });
    return kept;
}

QString realText(double number)
{
    if (std::isnan(number))
        return QStringLiteral("nan");
    if (std::isinf(number))
        return number < 0 ? QStringLiteral("-infinity") : QStringLiteral("+infinity");
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

/// A scalar's element.
struct Element
{
    QString name;
    QString text = {};
};

/// Nothing where no list can hold the value.
std::optional<Element> elementOf(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QString:
        return Element{QStringLiteral("string"), xmlText(value.toString())};
    case QMetaType::Bool:
        return Element{value.toBool() ? QStringLiteral("true") : QStringLiteral("false")};
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong:
        return Element{QStringLiteral("integer"), QString::number(value.toLongLong())};
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        return Element{QStringLiteral("integer"), QString::number(value.toULongLong())};
    case QMetaType::Float:
    case QMetaType::Double:
        return Element{QStringLiteral("real"), realText(value.toDouble())};
    case QMetaType::QDateTime: {
        // Empty outside the years 0 to 9999.
        const QString text = value.toDateTime().toUTC().toString(Qt::ISODate);
        return text.isEmpty() ? std::nullopt : std::optional(Element{QStringLiteral("date"), text});
    }
    case QMetaType::QByteArray:
        return Element{QStringLiteral("data"), QString::fromLatin1(value.toByteArray().toBase64())};
    default:
        return std::nullopt;
    }
}

class Writer
{
public:
    explicit Writer(QByteArray *document)
        : m_xml(document)
    {
        m_xml.setAutoFormatting(true);
        m_xml.setAutoFormattingIndent(-1); // a tab
    }

    /// False where no list can hold the value: it is left out, with its key.
    bool document(const QVariant &root)
    {
        m_xml.writeStartDocument();
        m_xml.writeDTD(QStringLiteral("<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                                      "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">"));
        m_xml.writeStartElement(QStringLiteral("plist"));
        m_xml.writeAttribute(QStringLiteral("version"), QStringLiteral("1.0"));
        const bool isWritten = value(root);
        m_xml.writeEndDocument();
        return isWritten;
    }

private:
    bool value(const QVariant &value, const QString *key = nullptr)
    {
        switch (value.typeId()) {
        case QMetaType::QVariantMap:
            dictionary(value.toMap(), key);
            return true;
        case QMetaType::QVariantList:
        case QMetaType::QStringList:
            array(value.toList(), key);
            return true;
        default:
            return scalar(value, key);
        }
    }

    void writeKey(const QString *key)
    {
        if (key)
            m_xml.writeTextElement(QStringLiteral("key"), xmlText(*key));
    }

    void dictionary(const QVariantMap &values, const QString *key)
    {
        writeKey(key);
        m_xml.writeStartElement(QStringLiteral("dict"));
        for (auto entry = values.begin(); entry != values.end(); ++entry)
            value(entry.value(), &entry.key());
        m_xml.writeEndElement();
    }

    void array(const QVariantList &values, const QString *key)
    {
        writeKey(key);
        m_xml.writeStartElement(QStringLiteral("array"));
        for (const QVariant &item : values)
            value(item);
        m_xml.writeEndElement();
    }

    bool scalar(const QVariant &value, const QString *key)
    {
        const std::optional<Element> element = elementOf(value);
        if (!element)
            return false;
        writeKey(key);
        if (value.typeId() == QMetaType::Bool)
            m_xml.writeEmptyElement(element->name);
        else
            m_xml.writeTextElement(element->name, element->text);
        return true;
    }

    QXmlStreamWriter m_xml;
};

} // namespace

QByteArray PropertyList::toXml(const QVariant &root)
{
    QByteArray xml;
    if (!Writer(&xml).document(root))
        return {};
    // A bare carriage return would come back as a line feed, and another file's name.
    xml.replace('\r', "&#13;");
    return xml;
}
