#include "platform/lists/PropertyList.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <QDateTime>

#include <string>

namespace {

/// Writes down what it is told; refuses the key "no".
class Recorder : public PropertyListHandler
{
public:
    std::string told;

    bool key(std::string_view name) override
    {
        if (name != "no")
            told.append(name).append("=");
        return name != "no";
    }
    void beginDictionary() override { told += "{ "; }
    void endDictionary() override { told += "} "; }
    void beginArray() override { told += "[ "; }
    void endArray() override { told += "] "; }
    void scalar(const PropertyListScalar &value) override
    {
        std::visit([this](const auto &typed) { told += print(typed) + " "; }, value);
    }

private:
    static std::string print(std::string_view text) { return "S:" + std::string(text); }
    static std::string print(bool value) { return value ? "B:true" : "B:false"; }
    static std::string print(std::int64_t number) { return "I:" + std::to_string(number); }
    static std::string print(std::uint64_t number) { return "U:" + std::to_string(number); }
    static std::string print(double number) { return "R:" + QString::number(number).toStdString(); }
    static std::string print(const QByteArray &data) { return "D:" + data.toHex().toStdString(); }
    static std::string print(const QDateTime &date)
    {
        return "T:" + date.toString(Qt::ISODate).toStdString();
    }
};

/// Its contents begin on line 2.
QByteArray document(const QByteArray &contents)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">" + contents +
           "</plist>";
}

QByteArray nested(int depth)
{
    return document(QByteArray("<array>").repeated(depth) + QByteArray("</array>").repeated(depth));
}

/// A binary list of objects given in hexadecimal with blanks between, the first one its root.
QByteArray binary(const QByteArray &objects)
{
    QByteArray bytes = "bplist00";
    QByteArray offsets;
    for (const QByteArray &object : objects.split(' ')) {
        offsets += char(bytes.size());
        bytes += QByteArray::fromHex(object);
    }
    const char table = char(bytes.size());
    return bytes + offsets + QByteArray(6, 0) + "\x01\x01" + QByteArray(7, 0) +
           char(offsets.size()) + QByteArray(15, 0) + table;
}

using Cases = std::initializer_list<std::pair<QByteArray, std::string>>;

class PropertyListFile : public testing::Test
{
protected:
    const TemporaryFolder folder;
    const QString path = folder / "list.plist";

    /// What is told of each, or what is wrong with it.
    void expectEach(Cases cases, QByteArray (*file)(const QByteArray &)) const
    {
        for (const auto &[contents, expected] : cases) {
            writeFile(path, file(contents));
            Recorder recorder;
            const auto done = readPropertyList(path, PropertyList::defaultLimit, recorder);
            EXPECT_EQ(done ? recorder.told : done.error().text.toStdString(), expected)
                << contents.left(400).constData();
        }
    }
};

TEST_F(PropertyListFile, XmlIsToldInFileOrder)
{
    expectEach(
        {{"<dict><key>b</key><true/><key>a</key><false></false></dict>", "{ b=B:true a=B:false } "},
         {"<array><integer> -7\n</integer><integer>0x1F</integer><integer>+3</integer></array>",
          "[ I:-7 I:31 I:3 ] "},
         {"<integer>-0x8000000000000000</integer>", "I:-9223372036854775808 "},
         {"<integer>18446744073709551615</integer>", "U:18446744073709551615 "},
         {"<array><real>1.5e3</real><real>+infinity</real><real> nan </real></array>",
          "[ R:1500 R:inf R:nan ] "},
         {"<date>2004-02-29T23:59:59Z</date>", "T:2004-02-29T23:59:59Z "},
         {"<data>\n\tAAEC\n\t</data>", "D:000102 "},
         {"<string>a&amp;b&#x20AC;<![CDATA[<x>]]> c\r\nd</string>", "S:a&b\u20AC<x> c\nd "},
         {"<string>" + QByteArray(3 << 20, 'x') + "</string>",
          "S:" + std::string(3 << 20, 'x') + " "},
         {"<dict><key>no</key><dict><key>a</key><array/></dict><key>a</key><dict><key>no</key>"
          "<array/><key>b</key><true/></dict></dict>",
          "{ a={ b=B:true } } "}},
        document);
    expectEach(
        {{"\xEF\xBB\xBF<plist><string>x</string></plist>", "S:x "},
         {"<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><plist><string>\xE9</string></plist>",
          "S:\u00E9 "}},
        [](const QByteArray &file) { return file; });
}

TEST_F(PropertyListFile, BrokenListsAreRefusedWithTheirLine)
{
    expectEach(
        {{"<dict>\n<key>a</key>\n</dict>", "line 4: a <key> without a value"},
         {"<dict>\n<string/></dict>", "line 3: <string> where a <key> belongs"},
         {"<dict><key>no</key><set/></dict>", "line 2: <set> where a value belongs"},
         {"<dict><key>no</key>" + QByteArray("<array>").repeated(600),
          "line 2: nested deeper than 512"},
         {"<string><true/></string>", "line 2: <true> inside a key or a scalar"},
         {"<true/>\n<true/>", "line 3: <true> after the list's one value"},
         {"<string>&nbsp;</string>", "line 2: undefined entity"},
         {"<integer>12a</integer>", "line 2: \"12a\" is no integer"},
         {"<integer>18446744073709551616</integer>",
          "line 2: \"18446744073709551616\" is no integer"},
         {"<integer>-9223372036854775809</integer>",
          "line 2: \"-9223372036854775809\" is no integer"},
         {"<date>2005-02-29T00:00:00Z</date>", "line 2: \"2005-02-29T00:00:00Z\" is no date"},
         {"<data>&lt;&gt;</data>", "line 2: \"<>\" is no base64 data"}},
        document);
    expectEach({{"", "the file is empty"},
                {"<html/>", "line 1: <html> where <plist> belongs"},
                {document("<array>").chopped(9), "line 2: unclosed token"},
                {nested(513), "line 2: nested deeper than 512"},
                {"<!DOCTYPE p [\n<!ENTITY % a SYSTEM \"file:///etc/passwd\">]><plist/>",
                 "line 2: entity declarations are refused: \"a\""}},
               [](const QByteArray &file) { return file; });
}

TEST_F(PropertyListFile, BinaryListsAreToldAsXmlIs)
{
    expectEach({{"a20102 09 08", "[ B:true B:false ] "},
                {"c101 a0", "[ [ ] ] "}, // a set
                {"d201020303 5162 5161 d0", "{ b={ } a={ } } "},
                {"d10102 526100 09", std::string("{ a\0=B:true } ", 14)},
                {"d201020203 5161 526e6f", "{ a=S:no } "},
                {"11fffe", "I:65534 "},
                {"140000000000000000ffffffffffffffff", "U:18446744073709551615 "},
                {"14fffffffffffffffffffffffffffffffe", "I:-2 "},
                {"23bff8000000000000", "R:-1.5 "},
                {"33bff8000000000000", "T:2000-12-31T23:59:59Z "},
                {"33c22d63c37f000000", "T:0001-01-01T00:00:00Z "},
                {"4f1003000102", "D:000102 "}, // the count behind
                {"5f11000361006263", std::string("S:a\0b ", 6)},
                {"6300e920acd834", "S:\u00E9\u20AC? "},
                {"800b", "{ CF$UID=I:11 } "},
                {"00", "binary list: a value of an unknown kind"},
                {"1400000000000000010000000000000000", "binary list: an integer of over 64 bits"},
                {"337ff8000000000000", "binary list: a date outside the years 1 to 9999"},
                {"d10101 09", "binary list: a key that is no text"},
                {"a100", "binary list: nested deeper than 512"},
                {"a107", "binary list: object 7 lies outside the file"},
                {"af13ffffffffffffffff", "binary list: object 0 lies outside the file"}},
               binary);
    expectEach(
        {{"", "binary list: damaged trailer"}, {QByteArray(32, 0), "binary list: damaged trailer"}},
        [](const QByteArray &rest) { return "bplist00" + rest; });
}

TEST_F(PropertyListFile, NothingLongIsRead)
{
    Recorder recorder;
    writeFile(path, document(QByteArray(1000, ' ') + "<true/>"));
    EXPECT_EQ(PropertyList::logText(readPropertyList(path, 1000, recorder).error()),
              path + QStringLiteral(": the file is longer than 1000 bytes"));
    QByteArray bomb;
    for (int level = 1; level <= 9; ++level)
        bomb += "ae" + QByteArray::number(0x100 + level, 16).right(2).repeated(14) + ' ';
    writeFile(path, binary(bomb + "09"));
    EXPECT_EQ(readPropertyList(path, 1000, recorder).error().text,
              QStringLiteral("binary list: unfolds to more than 1048576 bytes"));
}

TEST_F(PropertyListFile, EveryTypeComesBackFromXmlAndWhatIsNoneIsLeftOut)
{
    QVariantMap values{
        {QStringLiteral(" <&>\r"), QStringLiteral(" <&>\"'\t\n\r \u00E9\U0001D11E ]]>")},
        {QStringLiteral("b"), QVariantList{0LL, true, QByteArray("\0\xFFx", 3), 0.1, 2.0, -1LL}},
        {QStringLiteral("c"), QVariantList{QVariantMap(), QVariantList(), ~quint64(0)}},
        {QStringLiteral("d"), QDateTime(QDate(9999, 2, 3), QTime(4, 5, 6), Qt::UTC)},
    };
    const QByteArray xml = PropertyList::toXml(values);
    values.insert(QStringLiteral("e"), QDateTime());
    EXPECT_EQ(PropertyList::toXml(values), xml);
    ASSERT_TRUE(PropertyList::writeAtomically(values, path));
    values.remove(QStringLiteral("e"));
    EXPECT_EQ(*PropertyList::readDictionary(path), values);
    EXPECT_EQ(PropertyList::toXml(*PropertyList::read(path)), xml); // numbers may equal booleans
    EXPECT_FALSE(PropertyList::writeAtomically({}, path).error().text.isEmpty());
    EXPECT_EQ(readFile(path), xml); // the old file stays
    writeFile(path,
              PropertyList::toXml(QVariantList{QStringLiteral("a\u0001\uFFFEb"), QVariant()}));
    EXPECT_EQ(*PropertyList::read(path), QVariantList{QStringLiteral("ab")});
}

TEST_F(PropertyListFile, StringArraysLeaveOtherTypesOutAndNameUnusableFiles)
{
    SystemLogCapture log;
    EXPECT_FALSE(PropertyList::readStringArray(path));
    writeFile(path, document("<array><string>b</string><true/><string>a</string></array>"));
    EXPECT_EQ(PropertyList::readStringArray(path).valueOr({}).join(u' '), u"b a");
    EXPECT_TRUE(log.lines().isEmpty());
    writeFile(path, document("<dict/>"));
    EXPECT_FALSE(PropertyList::readStringArray(path));
    EXPECT_TRUE(log.contains(path + QStringLiteral(": its root is no array")));
}

} // namespace
