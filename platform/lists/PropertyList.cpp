#include "platform/lists/PropertyList.h"

#include "platform/core/Log.h"
#include "platform/files/FileManager.h"

#include <vector>

namespace {

/// A scalar as the tree holds it.
struct ToVariant
{
    QVariant operator()(std::string_view text) const { return QString::fromUtf8(text); }
    QVariant operator()(std::int64_t number) const { return qlonglong(number); }
    QVariant operator()(std::uint64_t number) const { return qulonglong(number); }
    QVariant operator()(const auto &value) const { return value; }
};

/// Builds the tree from the pieces.
class TreeBuilder : public PropertyListHandler
{
public:
    QVariant root;

    bool key(std::string_view name) override
    {
        m_open.back().key = QString::fromUtf8(name);
        return true;
    }
    void beginDictionary() override { m_open.push_back({true}); }
    void endDictionary() override { add(takeLast().dictionary); }
    void beginArray() override { m_open.push_back({false}); }
    void endArray() override { add(takeLast().array); }
    void scalar(const PropertyListScalar &value) override { add(std::visit(ToVariant(), value)); }

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

FileError wrongRoot(const QString &path, const QString &text)
{
    return {FileError::Operation::Parse, path, 0, text};
}

FileResult<QStringList> stringsOf(const QString &path)
{
    const FileResult<QVariant> root = PropertyList::read(path);
    if (!root)
        return root.error();
    if (root->typeId() != QMetaType::QVariantList)
        return wrongRoot(path, QStringLiteral("its root is no array"));
    return PropertyList::stringsIn(root->toList());
}

} // namespace

FileResult<QVariant> PropertyList::read(const QString &path, quint64 limit)
{
    TreeBuilder builder;
    const FileResult<> done = readPropertyList(path, limit, builder);
    if (!done)
        return done.error();
    return builder.root;
}

FileResult<QVariantMap> PropertyList::readDictionary(const QString &path)
{
    const FileResult<QVariant> root = read(path);
    if (!root)
        return root.error();
    if (root->typeId() != QMetaType::QVariantMap)
        return wrongRoot(path, QStringLiteral("its root is no dictionary"));
    return root->toMap();
}

FileResult<QStringList> PropertyList::readStringArray(const QString &path)
{
    FileResult<QStringList> strings = stringsOf(path);
    if (!strings && !strings.error().isMissing())
        qCWarning(lcPlatform).noquote() << "can't use" << logText(strings.error());
    return strings;
}

QStringList PropertyList::stringsIn(const QVariantList &entries)
{
    QStringList strings;
    for (const QVariant &entry : entries) {
        if (entry.typeId() == QMetaType::QString)
            strings.append(entry.toString());
    }
    return strings;
}

QString PropertyList::logText(const FileError &error)
{
    const QString line = QStringLiteral("line ");
    if (error.operation == FileError::Operation::Parse && error.text.startsWith(line))
        return error.path + u':' + error.text.sliced(line.size());
    return error.path + QStringLiteral(": ") + error.text;
}

FileResult<> PropertyList::writeAtomically(const QVariant &root, const QString &path)
{
    const QByteArray xml = toXml(root);
    if (!xml.isEmpty())
        return files().writeAtomically(path, xml);
    return FileError{FileError::Operation::Write, path, 0,
                     QStringLiteral("no property list can hold the value")};
}
