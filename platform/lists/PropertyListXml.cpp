#include "platform/lists/own/PropertyListParts.h"
#include "platform/lists/own/XmlElements.h"

#include <expat.h>

#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

using namespace PropertyListParts;
using XmlElements::Element;

namespace {

constexpr int chunkSize = 1 << 20;

QString tag(const char *name)
{
    return u'<' + QString::fromUtf8(name) + u'>';
}

/// Feeds one XML file to a handler. What nobody wants costs a counter: the parser is asked for
/// texts only inside a key or a wanted scalar.
class XmlReader
{
public:
    XmlReader(ListFile &file, PropertyListHandler &handler);

    FileResult<> read(quint64 limit);

private:
    /// What the next element has to be.
    enum class Expect { Plist, RootValue, Key, Value, RefusedValue, Item, Nothing };

    struct FreeParser
    {
        void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
    };

    static XmlReader &self(void *reader) { return *static_cast<XmlReader *>(reader); }
    static void onStart(void *reader, const XML_Char *name, const XML_Char **attributes);
    static void onEnd(void *reader, const XML_Char *name);
    static void onText(void *reader, const XML_Char *text, int length);
    static void onEntity(void *reader, const XML_Char *name, int isParameter, const XML_Char *value,
                         int length, const XML_Char *base, const XML_Char *system,
                         const XML_Char *publicId, const XML_Char *notation);
    static void onSkippedEntity(void *reader, const XML_Char *name, int isParameter);

    FileError parserError() const;
    int line() const;
    void fail(const QString &text);
    void start(const char *name);
    void end();
    void startSkipped();
    void startValue(Element element, const char *name);
    void startRefused(Element element, const char *name);
    void startContainer(Element element);
    void startLeaf(Element element);
    void endLeaf();
    void endContainer();
    void endKey();
    void valueIsComplete();

    const std::unique_ptr<std::remove_pointer_t<XML_Parser>, FreeParser> m_parser;
    ListFile &m_file;
    PropertyListHandler &m_handler;
    std::optional<FileError> m_error;
    Expect m_expect = Expect::Plist;
    std::optional<Element> m_leaf; // the open key or scalar
    std::size_t m_skipped = 0;     // open elements of a refused value
    std::vector<Element> m_open;   // containers
    std::string m_text;            // of the open key or scalar; keeps its capacity
};

XmlReader::XmlReader(ListFile &file, PropertyListHandler &handler)
    : m_parser(XML_ParserCreate(nullptr))
    , m_file(file)
    , m_handler(handler)
{
    if (!m_parser)
        return;
    XML_SetUserData(m_parser.get(), this);
    XML_SetElementHandler(m_parser.get(), onStart, onEnd);
    XML_SetEntityDeclHandler(m_parser.get(), onEntity);
    XML_SetSkippedEntityHandler(m_parser.get(), onSkippedEntity);
}

FileResult<> XmlReader::read(quint64 limit)
{
    quint64 total = 0;
    for (;;) {
        void *buffer = m_parser ? XML_GetBuffer(m_parser.get(), chunkSize) : nullptr;
        if (!buffer)
            return m_file.damage(QStringLiteral("out of memory"));
        const FileResult<size_t> count = m_file.read(buffer, chunkSize);
        if (!count)
            return count.error();
        total += *count;
        if (total > limit)
            return m_file.tooLong(limit);
        const bool isLast = *count == 0;
        if (XML_ParseBuffer(m_parser.get(), static_cast<int>(*count), isLast) != XML_STATUS_OK)
            return parserError();
        if (isLast)
            return {};
    }
}

int XmlReader::line() const
{
    return static_cast<int>(XML_GetCurrentLineNumber(m_parser.get()));
}

FileError XmlReader::parserError() const
{
    const XML_Error code = XML_GetErrorCode(m_parser.get());
    return m_error ? *m_error : m_file.damage(QString::fromUtf8(XML_ErrorString(code)), line());
}

/// The parser may still deliver events of the same token after it was stopped: nobody hears them.
void XmlReader::fail(const QString &text)
{
    m_error = m_file.damage(text, line());
    XML_SetElementHandler(m_parser.get(), nullptr, nullptr);
    XML_SetCharacterDataHandler(m_parser.get(), nullptr);
    XML_SetEntityDeclHandler(m_parser.get(), nullptr);
    XML_SetSkippedEntityHandler(m_parser.get(), nullptr);
    XML_StopParser(m_parser.get(), XML_FALSE);
}

void XmlReader::onStart(void *reader, const XML_Char *name, const XML_Char **)
{
    self(reader).start(name);
}

void XmlReader::onEnd(void *reader, const XML_Char *)
{
    self(reader).end();
}

void XmlReader::onText(void *reader, const XML_Char *text, int length)
{
    self(reader).m_text.append(text, static_cast<std::size_t>(length));
}

/// No property list declares entities; a file that does wants to grow in memory or to pull in
/// others.
void XmlReader::onEntity(void *reader, const XML_Char *name, int, const XML_Char *, int,
                         const XML_Char *, const XML_Char *, const XML_Char *, const XML_Char *)
{
    self(reader).fail(
        QStringLiteral("entity declarations are refused: \"%1\"").arg(QString::fromUtf8(name)));
}

void XmlReader::onSkippedEntity(void *reader, const XML_Char *name, int)
{
    self(reader).fail(QStringLiteral("unknown entity \"%1\"").arg(QString::fromUtf8(name)));
}

void XmlReader::start(const char *name)
{
    if (m_skipped > 0)
        return startSkipped();
    if (m_leaf)
        return fail(tag(name) + QStringLiteral(" inside a key or a scalar"));
    const Element element = XmlElements::elementNamed(name);
    switch (m_expect) {
    case Expect::Plist:
        if (element != Element::Plist)
            return fail(tag(name) + QStringLiteral(" where <plist> belongs"));
        m_expect = Expect::RootValue;
        return;
    case Expect::Key:
        if (element != Element::Key)
            return fail(tag(name) + QStringLiteral(" where a <key> belongs"));
        return startLeaf(element);
    case Expect::RefusedValue:
        return startRefused(element, name);
    case Expect::RootValue:
    case Expect::Value:
    case Expect::Item:
        return startValue(element, name);
    case Expect::Nothing:
        return fail(tag(name) + QStringLiteral(" after the list's one value"));
    }
}

void XmlReader::startSkipped()
{
    if (m_open.size() + m_skipped > depthLimit)
        return fail(tooDeepText());
    ++m_skipped;
}

void XmlReader::startRefused(Element element, const char *name)
{
    if (element == Element::Unknown || element == Element::Key || element == Element::Plist)
        return fail(tag(name) + QStringLiteral(" where a value belongs"));
    startSkipped();
}

void XmlReader::startValue(Element element, const char *name)
{
    if (element == Element::Dictionary || element == Element::Array)
        startContainer(element);
    else if (XmlElements::isScalar(element))
        startLeaf(element);
    else
        fail(tag(name) + QStringLiteral(" where a value belongs"));
}

void XmlReader::startContainer(Element element)
{
    if (m_open.size() >= depthLimit)
        return fail(tooDeepText());
    m_open.push_back(element);
    if (element == Element::Dictionary) {
        m_expect = Expect::Key;
        m_handler.beginDictionary();
    } else {
        m_expect = Expect::Item;
        m_handler.beginArray();
    }
}

void XmlReader::startLeaf(Element element)
{
    m_leaf = element;
    m_text.clear();
    XML_SetCharacterDataHandler(m_parser.get(), onText);
}

void XmlReader::end()
{
    if (m_skipped > 0) {
        if (--m_skipped == 0)
            valueIsComplete();
    } else if (m_leaf) {
        endLeaf();
    } else if (!m_open.empty()) {
        endContainer();
    } else if (m_expect == Expect::RootValue) {
        fail(QStringLiteral("<plist> holds no value"));
    }
}

void XmlReader::endLeaf()
{
    XML_SetCharacterDataHandler(m_parser.get(), nullptr);
    const Element element = *m_leaf;
    m_leaf.reset();
    if (element == Element::Key)
        return endKey();
    const std::optional<PropertyListScalar> scalar = XmlElements::scalarFrom(element, m_text);
    if (!scalar)
        return fail(XmlElements::invalidScalarText(element, m_text));
    m_handler.scalar(*scalar);
    valueIsComplete();
    // One long text must not stay in memory for the rest of the file.
    if (m_text.capacity() > chunkSize)
        std::string().swap(m_text);
}

void XmlReader::endKey()
{
    m_expect = m_handler.key(m_text) ? Expect::Value : Expect::RefusedValue;
}

void XmlReader::endContainer()
{
    if (m_expect == Expect::Value || m_expect == Expect::RefusedValue)
        return fail(QStringLiteral("a <key> without a value"));
    const Element element = m_open.back();
    m_open.pop_back();
    if (element == Element::Dictionary)
        m_handler.endDictionary();
    else
        m_handler.endArray();
    valueIsComplete();
}

void XmlReader::valueIsComplete()
{
    if (m_open.empty())
        m_expect = Expect::Nothing;
    else
        m_expect = m_open.back() == Element::Dictionary ? Expect::Key : Expect::Item;
}

} // namespace

FileResult<> PropertyListParts::readXml(ListFile &file, quint64 limit, PropertyListHandler &handler)
{
    return XmlReader(file, handler).read(limit);
}
