#include "platform/lists/PropertyList.h"

#include "platform/core/Log.h"
#include "platform/files/FileManager.h"

#include <QDateTime>
#include <QStringList>

#include <plist/plist.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

namespace {

QString toQString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QVariant toVariant(const PropertyListScalar &scalar)
{
    const auto bytes = [&scalar] {
        return QByteArray(scalar.text.data(), static_cast<qsizetype>(scalar.text.size()));
    };
    switch (scalar.type) {
    case PropertyListType::String:
        return toQString(scalar.text);
    case PropertyListType::Integer: {
        bool ok = false;
        const qlonglong number = scalar.toInteger(&ok);
        return ok ? QVariant(number) : QVariant(qulonglong(scalar.toUnsigned()));
    }
    case PropertyListType::Real:
        return scalar.toReal();
    case PropertyListType::Boolean:
        return scalar.text == "true";
    case PropertyListType::Date:
        // Years may be shorter than Qt wants them.
        return QDateTime::fromString(toQString(scalar.text).trimmed().rightJustified(20, u'0'),
                                     Qt::ISODate);
    case PropertyListType::Data:
        return QByteArray::fromBase64(bytes());
    }
    return {};
}

/// Builds the tree from the pieces.
class TreeBuilder : public PropertyListHandler
{
public:
    QVariant root;

    bool key(std::string_view name) override
    {
        m_open.back().key = toQString(name);
        return true;
    }
    void beginDictionary() override { m_open.push_back({true}); }
    void endDictionary() override { add(takeLast().dictionary); }
    void beginArray() override { m_open.push_back({false}); }
    void endArray() override { add(takeLast().array); }
    void scalar(const PropertyListScalar &value) override { add(toVariant(value)); }

private:
    struct Container
    {
        bool isDictionary = false;
        QString key = {}; // of the value that comes next
        QVariantMap dictionary = {};
        QVariantList array = {};
    };

    Container takeLast()
    {
        Container last = std::move(m_open.back());
        m_open.pop_back();
        return last;
    }

    void add(const QVariant &value)
    {
        if (m_open.empty())
            root = value;
        else if (Container &open = m_open.back(); open.isDictionary)
            open.dictionary.insert(open.key, value);
        else
            open.array.append(value);
    }

    std::vector<Container> m_open;
};

struct FreeNode
{
    void operator()(void *node) const { plist_free(node); }
};
using Node = std::unique_ptr<void, FreeNode>;

Node toNode(const QVariant &value);

/// libplist writes every character as it stands, and no XML document can hold these, not even
/// escaped: with them in it the whole file would be unreadable, without them one name looks odd.
bool fitsXml(char32_t character)
{
    if (character < 0x20)
        return character == '\t' || character == '\n' || character == '\r';
    return character != 0xFFFE && character != 0xFFFF;
}

QByteArray xmlText(const QString &text)
{
    QString kept = text;
    kept.removeIf([](QChar character) { return !fitsXml(character.unicode()); });
    return kept.toUtf8();
}

/// libplist's calls take an integer without its sign and dates of 32 bits of seconds; what it reads
/// from XML has both whole.
Node parsedNode(const QByteArray &element)
{
    const QByteArray document = "<plist version=\"1.0\">" + element + "</plist>";
    plist_t node = nullptr;
    plist_from_xml(document.constData(), static_cast<uint32_t>(document.size()), &node);
    return Node(node);
}

Node dateNode(const QDateTime &date)
{
    const QString text = date.toUTC().toString(Qt::ISODate); // empty outside the years 0 to 9999
    return text.isEmpty() ? Node() : parsedNode("<date>" + text.toLatin1() + "</date>");
}

Node arrayNode(const QVariantList &values)
{
    Node array(plist_new_array());
    for (const QVariant &value : values) {
        if (Node item = toNode(value))
            plist_array_append_item(array.get(), item.release());
    }
    return array;
}

Node dictionaryNode(const QVariantMap &values)
{
    Node dictionary(plist_new_dict());
    for (auto entry = values.begin(); entry != values.end(); ++entry) {
        if (Node item = toNode(entry.value()))
            plist_dict_set_item(dictionary.get(), xmlText(entry.key()).constData(), item.release());
    }
    return dictionary;
}

Node dataNode(const QByteArray &bytes)
{
    return Node(plist_new_data(bytes.constData(), static_cast<uint64_t>(bytes.size())));
}

Node toNode(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QVariantMap:
        return dictionaryNode(value.toMap());
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        return arrayNode(value.toList());
    case QMetaType::QString:
        return Node(plist_new_string(xmlText(value.toString()).constData()));
    case QMetaType::Bool:
        return Node(plist_new_bool(value.toBool() ? 1 : 0));
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong:
        return parsedNode("<integer>" + QByteArray::number(value.toLongLong()) + "</integer>");
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        return parsedNode("<integer>" + QByteArray::number(value.toULongLong()) + "</integer>");
    case QMetaType::Float:
    case QMetaType::Double:
        return Node(plist_new_real(value.toDouble()));
    case QMetaType::QDateTime:
        return dateNode(value.toDateTime());
    case QMetaType::QByteArray:
        return dataNode(value.toByteArray());
    default:
        return nullptr;
    }
}

} // namespace

std::optional<QVariant> PropertyList::read(const QString &path, quint64 limit,
                                           PropertyListError *error)
{
    TreeBuilder builder;
    if (!readPropertyList(path, limit, builder, error))
        return std::nullopt;
    return builder.root;
}

std::optional<QStringList> PropertyList::readStringArray(const QString &path)
{
    PropertyListError error;
    const std::optional<QVariant> root = read(path, defaultLimit, &error);
    if (root && root->typeId() != QMetaType::QVariantList)
        error = {QStringLiteral("its root is no array"), 0};
    if (error)
        qCWarning(lcPlatform).noquote() << "can't use" << error.in(path);
    if (!root || error)
        return std::nullopt;
    QStringList strings;
    for (const QVariant &entry : root->toList()) {
        if (entry.typeId() == QMetaType::QString)
            strings.append(entry.toString());
    }
    return strings;
}

QByteArray PropertyList::toXml(const QVariant &root)
{
    const Node node = toNode(root);
    if (!node)
        return {};
    char *text = nullptr;
    uint32_t length = 0;
    plist_to_xml(node.get(), &text, &length);
    QByteArray xml(text, static_cast<qsizetype>(length));
    plist_to_xml_free(text);
    // A bare carriage return would come back as a line feed, and another file's name.
    xml.replace('\r', "&#13;");
    return xml;
}

bool PropertyList::writeAtomically(const QVariant &root, const QString &path, QString *reason)
{
    const QByteArray xml = toXml(root);
    if (xml.isEmpty()) {
        if (reason)
            *reason = QStringLiteral("no property list can hold the value");
        return false;
    }
    const auto written = files().writeAtomically(path, xml);
    if (!written && reason)
        *reason = written.error().text;
    return bool(written);
}
