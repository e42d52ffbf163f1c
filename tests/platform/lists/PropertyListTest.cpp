#include "platform/lists/PropertyList.h"
#include "platform/files/FileManager.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <QDateTime>

#include <sys/stat.h>

#include <cmath>
#include <limits>
#include <set>
#include <string>

namespace {

/// Writes down what it is told; refuses the keys of a set.
class Recorder : public PropertyListHandler
{
public:
    std::set<std::string, std::less<>> refused;
    std::string told;

    bool key(std::string_view name) override
    {
        if (refused.contains(name))
            return false;
        told.append(name).append("=");
        return true;
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

QByteArray document(const QByteArray &contents)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<!DOCTYPE plist PUBLIC \"-//Apple Computer//DTD PLIST 1.0//EN\" "
           "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
           "<plist version=\"1.0\">\n" +
           contents + "</plist>\n";
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

class PropertyListFile : public testing::Test
{
protected:
    TemporaryFolder folder;
    const QString path = folder / QStringLiteral("list.plist");

    std::string told(const QByteArray &contents, Recorder recorder = {})
    {
        writeFile(path, contents);
        const auto done = readPropertyList(path, PropertyList::defaultLimit, recorder);
        return done ? recorder.told : done.error().text.toStdString();
    }
};

TEST_F(PropertyListFile, XmlIsToldInFileOrder)
{
    const std::pair<QByteArray, std::string> documents[] = {
        {"<string/>", "S: "},
        {"<dict/>", "{ } "},
        {"<array><dict/><array/></array>", "[ { } [ ] ] "},
        {"<dict><key>b</key><true/><key>a</key><false></false></dict>", "{ b=B:true a=B:false } "},
        {"<array><integer> -7\n</integer><integer>0x1F</integer><integer>+3</integer></array>",
         "[ I:-7 I:31 I:3 ] "},
        {"<integer>-0x8000000000000000</integer>", "I:-9223372036854775808 "},
        {"<integer>9223372036854775807</integer>", "I:9223372036854775807 "},
        {"<integer>9223372036854775808</integer>", "U:9223372036854775808 "},
        {"<integer>18446744073709551615</integer>", "U:18446744073709551615 "},
        {"<array><real>1.5e3</real><real>+infinity</real><real> nan </real></array>",
         "[ R:1500 R:inf R:nan ] "},
        {"<date>2004-02-29T23:59:59Z</date>", "T:2004-02-29T23:59:59Z "},
        {"<date>1-01-01T00:00:00Z</date>", "T:0001-01-01T00:00:00Z "},
        {"<data>\n\tAAEC\n\t</data>", "D:000102 "},
        {"<string>a&amp;b&#x20AC;<![CDATA[<x>]]> c\r\nd</string>", "S:a&b\u20AC<x> c\nd "},
        {"<string>" + QByteArray(3 << 20, 'x') + "</string>",
         "S:" + std::string(3 << 20, 'x') + " "},
    };
    for (const auto &[contents, expected] : documents)
        EXPECT_EQ(told(document(contents)), expected) << contents.left(400).constData();
    const std::pair<QByteArray, std::string> files[] = {
        {"\xEF\xBB\xBF<plist><key/></plist>", "line 1: <key> where a value belongs"},
        {"<plist><string>x</string></plist>", "S:x "},
        {"<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><plist><string>\xE9</string></plist>",
         "S:\u00E9 "},
    };
    for (const auto &[contents, expected] : files)
        EXPECT_EQ(told(contents), expected) << contents.left(400).constData();
    EXPECT_EQ(told(nested(512)).size(), 512U * 4);
}

TEST_F(PropertyListFile, BrokenListsAreRefusedWithTheirLine)
{
    const std::pair<QByteArray, std::string> documents[] = {
        {"<dict>\n<key>a</key>\n</dict>", "line 6: a <key> without a value"},
        {"<dict>\n<string/></dict>", "line 5: <string> where a <key> belongs"},
        {"<dict><key>a</key><key>b</key></dict>", "line 4: <key> where a value belongs"},
        {"\n<array><key>a</key></array>", "line 5: <key> where a value belongs"},
        {"<set/>", "line 4: <set> where a value belongs"},
        {"<array><dictionary/></array>", "line 4: <dictionary> where a value belongs"},
        {"<string><true/></string>", "line 4: <true> inside a key or a scalar"},
        {"<dict><key>a<b/></key></dict>", "line 4: <b> inside a key or a scalar"},
        {"<true>x</true>", "line 4: text inside a boolean"},
        {"<true/>\n<true/>", "line 5: <true> after the list's one value"},
        {"<dict></array>", "line 4: mismatched tag"},
        {"<string>a\x01</string>", "line 4: not well-formed (invalid token)"},
        {"<string>&nbsp;</string>", "line 4: unknown entity \"nbsp\""},
        {"<integer>12a</integer>", "line 4: \"12a\" is no integer"},
        {"<integer></integer>", "line 4: \"\" is no integer"},
        {"<integer>18446744073709551616</integer>",
         "line 4: \"18446744073709551616\" is no integer"},
        {"<integer>-9223372036854775809</integer>",
         "line 4: \"-9223372036854775809\" is no integer"},
        {"<real>one</real>", "line 4: \"one\" is no real"},
        {"<date>2005-02-29T00:00:00Z</date>", "line 4: \"2005-02-29T00:00:00Z\" is no date"},
        {"<date>yesterday</date>", "line 4: \"yesterday\" is no date"},
        {"<data>&lt;&gt;</data>", "line 4: \"<>\" is no base64 data"},
    };
    for (const auto &[contents, expected] : documents)
        EXPECT_EQ(told(document(contents)), expected) << contents.left(400).constData();
    const std::pair<QByteArray, std::string> files[] = {
        {"", "the file is empty"},
        {"{ a = b; }", "line 1: not well-formed (invalid token)"},
        {"<html/>", "line 1: <html> where <plist> belongs"},
        {"<plist/>", "line 1: <plist> holds no value"},
        {document("<string>x</string>").chopped(12), "line 4: unclosed token"},
        {document("<array>").chopped(9), "line 4: no element found"},
        {document("<true/>") + "<plist/>", "line 5: junk after document element"},
        {nested(513), "line 4: nested deeper than 512"},
        {"<!DOCTYPE plist [\n<!ENTITY a \"b\">]><plist><string>&a;</string></plist>",
         "line 2: entity declarations are refused: \"a\""},
        {"<!DOCTYPE p [<!ENTITY % a SYSTEM \"file:///etc/passwd\">]><plist><true/></plist>",
         "line 1: entity declarations are refused: \"a\""},
    };
    for (const auto &[contents, expected] : files)
        EXPECT_EQ(told(contents), expected) << contents.left(400).constData();
}

TEST_F(PropertyListFile, ARefusedKeysValueIsNotToldButMustBeAValue)
{
    Recorder refusing;
    refusing.refused = {"no"};
    const std::pair<QByteArray, std::string> cases[] = {
        {"<key>no</key><string>x</string><key>a</key><true/>", "{ a=B:true } "},
        {"<key>no</key><dict><key>a</key><array><string>x</string></array></dict>"
         "<key>a</key><dict><key>no</key><array/><key>b</key><true/></dict><key>no</key><true/>",
         "{ a={ b=B:true } } "},
        {"<key>no</key><key>a</key>", "line 4: <key> where a value belongs"},
        {"<key>no</key><set/>", "line 4: <set> where a value belongs"},
        {"\n<key>no</key>", "line 5: a <key> without a value"},
        {"<key>no</key>" + QByteArray("<array>").repeated(600), "line 4: nested deeper than 512"},
    };
    for (const auto &[contents, expected] : cases) {
        EXPECT_EQ(told(document("<dict>" + contents + "</dict>"), refusing), expected)
            << contents.constData();
    }
    EXPECT_EQ(told(binary("d201020203 5161 526e6f"), refusing), "{ a=S:no } ");
}

TEST_F(PropertyListFile, BinaryListsAreToldAsXmlIs)
{
    const std::pair<const char *, std::string> cases[] = {
        {"a20102 09 08", "[ B:true B:false ] "},
        {"c101 a0", "[ [ ] ] "}, // a set
        {"d201020303 5162 5161 d0", "{ b={ } a={ } } "},
        {"d10102 526100 09", std::string("{ a\0=B:true } ", 14)},
        {"10ff", "I:255 "},
        {"11fffe", "I:65534 "},
        {"12ffffffff", "I:4294967295 "},
        {"13ffffffffffffffff", "I:-1 "},
        {"140000000000000000ffffffffffffffff", "U:18446744073709551615 "},
        {"14fffffffffffffffffffffffffffffffe", "I:-2 "},
        {"223fc00000", "R:1.5 "},
        {"23bff8000000000000", "R:-1.5 "},
        {"33c1cd27e440000000", "T:1970-01-01T00:00:00Z "},
        {"33bff8000000000000", "T:2000-12-31T23:59:59Z "},
        {"33c22d63c37f000000", "T:0001-01-01T00:00:00Z "},
        {"4300ff01", "D:00ff01 "},
        {"4f1003000102", "D:000102 "}, // the count behind
        {"5f11000361006263", std::string("S:a\0b ", 6)},
        {"6300e920acd834", "S:\u00E9\u20AC? "},
        {"62d834dd1e", "S:\U0001D11E "},
        {"800b", "{ CF$UID=I:11 } "},
    };
    for (const auto &[objects, expected] : cases)
        EXPECT_EQ(told(binary(objects)), expected) << objects;
}

TEST_F(PropertyListFile, BrokenBinaryListsAreRefused)
{
    const std::pair<QList<QByteArray>, std::string> cases[] = {
        {{"00", "15" + QByteArray(64, '0'), "210000", "3200000000", "71e9",
          "88" + QByteArray(18, '0')},
         "a value of an unknown kind"},
        {{"1400000000000000010000000000000000"}, "an integer of over 64 bits"},
        {{"33c22d63c37f020000", "334e00000000000000", "337ff8000000000000"},
         "a date outside the years 1 to 9999"},
        {{"d10101 09"}, "a key that is no text"},
        {{"a100", "a101 a100"}, "nested deeper than 512"},
        {{"a107"}, "object 7 lies outside the file"},
        {{"af13ffffffffffffffff", "5f13ffffffffffffffff", "df137fffffffffffffff", "5f2001"},
         "object 0 lies outside the file"},
    };
    for (const auto &[lists, expected] : cases) {
        for (const QByteArray &objects : lists)
            EXPECT_EQ(told(binary(objects)), "binary list: " + expected) << objects.constData();
    }
    for (const QByteArray &file :
         {QByteArray("bplist00"), "bplist00" + QByteArray(32, 0), binary("a101 09").chopped(1)})
        EXPECT_EQ(told(file), "binary list: damaged trailer") << file.toHex().constData();
}

TEST_F(PropertyListFile, WhatIsNoFileOrTooLong)
{
    Recorder recorder;
    const auto errorOf = [&recorder](const QString &list) {
        return readPropertyList(list, 100, recorder).error();
    };
    EXPECT_TRUE(errorOf(path).isMissing());
    EXPECT_EQ(errorOf(folder.path()).text, QStringLiteral("Is a directory"));
    ASSERT_EQ(::mkfifo(qPrintable(path), 0600), 0);
    const FileError pipe = errorOf(path); // and does not wait for a writer
    EXPECT_EQ(pipe.operation, FileError::Operation::Read);
    EXPECT_FALSE(pipe.isMissing());
    const QString longer = folder / QStringLiteral("long.plist");
    writeFile(longer, document("<true/>"));
    EXPECT_EQ(errorOf(longer).operation, FileError::Operation::Parse);
    EXPECT_EQ(PropertyList::logText(errorOf(longer)),
              longer + QStringLiteral(": the file is longer than 100 bytes"));
    EXPECT_EQ(recorder.told, "");
    QByteArray bomb;
    for (int level = 1; level <= 9; ++level)
        bomb += "ae" + QByteArray::number(0x100 + level, 16).right(2).repeated(14) + ' ';
    writeFile(longer, binary(bomb + "09"));
    EXPECT_EQ(readPropertyList(longer, 1000, recorder).error().text,
              QStringLiteral("binary list: unfolds to more than 1048576 bytes"));
}

QVariantMap everyType()
{
    const auto date = [](int year) {
        return QVariant(QDateTime(QDate(year, 2, 3), QTime(4, 5, 6), Qt::UTC));
    };
    return {
        {QStringLiteral("text"), QStringLiteral(" <&>\"'\t\n\r \u00E9\u20AC\U0001D11E ]]>")},
        {QStringLiteral(" key <&>\r"), QString(QStringLiteral(""))},
        {QStringLiteral("numbers"), QVariantList{0LL, -1LL, std::numeric_limits<qlonglong>::min(),
                                                 std::numeric_limits<qlonglong>::max(),
                                                 QVariant(std::numeric_limits<qulonglong>::max())}},
        {QStringLiteral("reals"),
         QVariantList{0.1, -1.0 / 3, 1e300, 2.0, std::numeric_limits<double>::infinity()}},
        {QStringLiteral("booleans"), QVariantList{true, false}},
        {QStringLiteral("dates"),
         QVariantList{date(1), date(1900), date(2001), date(2100), date(9999)}},
        {QStringLiteral("data"), QVariantList{QByteArray("\0\xFFx", 3), QByteArray("")}},
        {QStringLiteral("empty"), QVariantList{QVariantMap(), QVariantList()}},
    };
}

TEST_F(PropertyListFile, EveryTypeComesBackFromXml)
{
    ASSERT_TRUE(PropertyList::writeAtomically(everyType(), path));
    const auto read = PropertyList::readDictionary(path);
    ASSERT_TRUE(read) << qPrintable(read.error().text);
    EXPECT_EQ(*read, everyType());
    const auto typesIn = [](const QVariantMap &values) { // a number may equal a boolean
        QList<int> types;
        for (const QVariant &value : values) {
            for (const QVariant &each : value.toList())
                types.append(each.typeId());
        }
        return types;
    };
    EXPECT_EQ(typesIn(*read), typesIn(everyType()));
    EXPECT_EQ(PropertyList::toXml(*read), readFile(path));
}

// Python's writer has made both files of the same list.
TEST_F(PropertyListFile, AnotherWritersBinaryListIsItsXmlList)
{
    const QString lists = QStringLiteral(CARAVEL_LISTS_FOLDER "/");
    for (const char *name : {"values", "strings", "text"}) {
        const auto xml = PropertyList::read(lists + QLatin1String(name) + QStringLiteral(".plist"));
        const auto binary =
            PropertyList::read(lists + QLatin1String(name) + QStringLiteral(".bplist"));
        ASSERT_TRUE(xml && binary) << name;
        EXPECT_EQ(PropertyList::toXml(*xml), PropertyList::toXml(*binary)) << name;
    }
}

TEST_F(PropertyListFile, WhatNoListCanHoldIsLeftOut)
{
    const QString odd = QStringLiteral("a\u0001b\uFFFE\uFFFFc\u001F") + QChar(0);
    const QVariantMap values{
        {odd, QVariantList{odd, QVariant(), 1, QVariant::fromValue(QChar(u'x'))}},
        {QStringLiteral("date"), QDateTime()}};
    writeFile(path, PropertyList::toXml(values));
    const QVariantMap expected{{QStringLiteral("abc"), QVariantList{QStringLiteral("abc"), 1LL}}};
    EXPECT_EQ(*PropertyList::read(path), QVariant(expected));

    EXPECT_TRUE(PropertyList::toXml({}).isEmpty());
    EXPECT_FALSE(PropertyList::writeAtomically({}, path).error().text.isEmpty());
    EXPECT_EQ(*PropertyList::read(path), QVariant(expected)); // the old file stays
}

TEST_F(PropertyListFile, StringArraysLeaveOtherTypesOutAndNameUnusableFiles)
{
    SystemLogCapture log;
    EXPECT_FALSE(PropertyList::readStringArray(path));
    EXPECT_TRUE(log.lines().isEmpty());
    writeFile(path, document("<array><string>b</string><true/><string>a</string></array>"));
    EXPECT_EQ(*PropertyList::readStringArray(path),
              (QStringList{QStringLiteral("b"), QStringLiteral("a")}));
    EXPECT_TRUE(log.lines().isEmpty());
    writeFile(path, document("<dict/>"));
    EXPECT_FALSE(PropertyList::readStringArray(path));
    EXPECT_TRUE(log.contains(path + QStringLiteral(": its root is no array")));
    writeFile(path, document("<array>\n<nil/></array>"));
    EXPECT_FALSE(PropertyList::readStringArray(path));
    EXPECT_TRUE(log.contains(path + QStringLiteral(":5: <nil> where a value belongs")));
}

} // namespace
