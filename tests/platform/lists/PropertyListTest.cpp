#include "platform/lists/PropertyList.h"
#include "platform/files/FileManager.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>
#include <plist/plist.h>

#include <QDateTime>

#include <sys/stat.h>

#include <cmath>
#include <cstdlib>
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
        told += "SIRBTD"[int(value.type)];
        told.append(":").append(value.text).append(" ");
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

QByteArray binaryOf(const QVariant &value)
{
    const QByteArray xml = PropertyList::toXml(value);
    plist_t node = nullptr;
    plist_from_xml(xml.constData(), uint32_t(xml.size()), &node);
    char *bytes = nullptr;
    uint32_t length = 0;
    plist_to_bin(node, &bytes, &length);
    const QByteArray binary(bytes, qsizetype(length));
    std::free(bytes);
    plist_free(node);
    return binary;
}

/// A binary list of objects given in hexadecimal, the first one its root.
QByteArray binaryOfObjects(const QList<QByteArray> &objects)
{
    QByteArray bytes = "bplist00";
    QByteArray offsets;
    for (const QByteArray &object : objects) {
        offsets += char(bytes.size());
        bytes += QByteArray::fromHex(object);
    }
    const char table = char(bytes.size());
    return bytes + offsets + QByteArray(6, 0) + "\x01\x01" + QByteArray(7, 0) +
           char(objects.size()) + QByteArray(15, 0) + table;
}

class PropertyListFile : public testing::Test
{
protected:
    TemporaryFolder folder;
    const QString path = folder / QStringLiteral("list.plist");

    std::string told(const QByteArray &contents, Recorder recorder = {})
    {
        writeFile(path, contents);
        PropertyListError error;
        if (readPropertyList(path, PropertyList::defaultLimit, recorder, &error))
            return recorder.told;
        return QStringLiteral("%1: %2").arg(error.line).arg(error.text).toStdString();
    }
};

TEST_F(PropertyListFile, XmlIsToldInFileOrder)
{
    const std::pair<QByteArray, std::string> cases[] = {
        {document("<string/>"), "S: "},
        {document("<dict/>"), "{ } "},
        {document("<array><dict/><array/></array>"), "[ { } [ ] ] "},
        {document("<dict><key>b</key><true/><key>a</key><false></false></dict>"),
         "{ b=B:true a=B:false } "},
        {document(
             "<array><integer>-7</integer><integer>0x1F</integer><integer>+3</integer></array>"),
         "[ I:-7 I:0x1F I:+3 ] "},
        {document("<array><real>1.5e3</real><real>+infinity</real><real>nan</real></array>"),
         "[ R:1.5e3 R:+infinity R:nan ] "},
        {document("<date>2004-02-29T23:59:59Z</date>"), "T:2004-02-29T23:59:59Z "},
        {document("<date>1-01-01T00:00:00Z</date>"), "T:1-01-01T00:00:00Z "},
        {document("<data>\n\tAAEC\n\t</data>"), "D:\n\tAAEC\n\t "},
        {document("<string>a&amp;b&#x20AC;<![CDATA[<x>]]> c\r\nd</string>"),
         "S:a&b\u20AC<x> c\nd "},
        {"\xEF\xBB\xBF<plist><key/></plist>", "1: <key> where a value belongs"},
        {"<plist><string>x</string></plist>", "S:x "},
        {"<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><plist><string>\xE9</string></plist>",
         "S:\u00E9 "},
        {document("<string>" + QByteArray(3 << 20, 'x') + "</string>"),
         "S:" + std::string(3 << 20, 'x') + " "},
    };
    for (const auto &[contents, expected] : cases)
        EXPECT_EQ(told(contents), expected) << contents.left(400).constData();
    EXPECT_EQ(told(nested(512)).size(), 512U * 4);
}

TEST_F(PropertyListFile, BrokenListsAreRefusedWithTheirLine)
{
    const std::pair<QByteArray, std::string> cases[] = {
        {"", "0: the file is empty"},
        {"{ a = b; }", "1: not well-formed (invalid token)"},
        {"<html/>", "1: <html> where <plist> belongs"},
        {"<plist/>", "1: <plist> holds no value"},
        {document("<dict>\n<key>a</key>\n</dict>"), "6: a <key> without a value"},
        {document("<dict>\n<string/></dict>"), "5: <string> where a <key> belongs"},
        {document("<dict><key>a</key><key>b</key></dict>"), "4: <key> where a value belongs"},
        {document("\n<array><key>a</key></array>"), "5: <key> where a value belongs"},
        {document("<set/>"), "4: <set> where a value belongs"},
        {document("<array><dictionary/></array>"), "4: <dictionary> where a value belongs"},
        {document("<string><true/></string>"), "4: <true> inside a key or a scalar"},
        {document("<dict><key>a<b/></key></dict>"), "4: <b> inside a key or a scalar"},
        {document("<true>x</true>"), "4: text inside a boolean"},
        {document("<true/>\n<true/>"), "5: <true> after the list's one value"},
        {document("<dict></array>"), "4: mismatched tag"},
        {document("<string>a\x01</string>"), "4: not well-formed (invalid token)"},
        {document("<string>&nbsp;</string>"), "4: unknown entity \"nbsp\""},
        {document("<integer>12a</integer>"), "4: \"12a\" is no integer"},
        {document("<integer></integer>"), "4: \"\" is no integer"},
        {document("<integer>18446744073709551616</integer>"),
         "4: \"18446744073709551616\" is no integer"},
        {document("<integer>-9223372036854775809</integer>"),
         "4: \"-9223372036854775809\" is no integer"},
        {document("<real>one</real>"), "4: \"one\" is no real"},
        {document("<date>2005-02-29T00:00:00Z</date>"), "4: \"2005-02-29T00:00:00Z\" is no date"},
        {document("<date>yesterday</date>"), "4: \"yesterday\" is no date"},
        {document("<data>&lt;&gt;</data>"), "4: \"<>\" is no base64 data"},
        {document("<string>x</string>").chopped(12), "4: unclosed token"},
        {document("<array>").chopped(9), "4: no element found"},
        {document("<true/>") + "<plist/>", "5: junk after document element"},
        {nested(513), "4: nested deeper than 512"},
        {"<!DOCTYPE plist [\n<!ENTITY a \"b\">]><plist><string>&a;</string></plist>",
         "2: entity declarations are refused: \"a\""},
        {"<!DOCTYPE p [<!ENTITY % a SYSTEM \"file:///etc/passwd\">]><plist><true/></plist>",
         "1: entity declarations are refused: \"a\""},
    };
    for (const auto &[contents, expected] : cases)
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
        {"<key>no</key><key>a</key>", "4: <key> where a value belongs"},
        {"<key>no</key><set/>", "4: <set> where a value belongs"},
        {"\n<key>no</key>", "5: a <key> without a value"},
        {"<key>no</key>" + QByteArray("<array>").repeated(600), "4: nested deeper than 512"},
    };
    for (const auto &[contents, expected] : cases) {
        EXPECT_EQ(told(document("<dict>" + contents + "</dict>"), refusing), expected)
            << contents.constData();
    }
    const QVariantMap inner{{QStringLiteral("a"), true}, {QStringLiteral("no"), 5}};
    const QVariantMap outer{{QStringLiteral("a"), inner}, {QStringLiteral("no"), inner}};
    EXPECT_EQ(told(binaryOf(outer), refusing), "{ a={ a=B:true } } ");
}

TEST_F(PropertyListFile, DamagedBinaryListsAreRefused)
{
    const QByteArray trailer = QByteArray(32, 0);
    QList<QByteArray> bomb;
    for (int level = 1; level <= 9; ++level)
        bomb += "ae" + QByteArray::number(0x100 + level, 16).right(2).repeated(14);
    bomb += "09";
    const std::pair<QByteArray, std::string> cases[] = {
        {binaryOfObjects({"a101", "09"}), "[ B:true ] "},
        {binaryOfObjects({"d10102", "5161", "800b"}), "{ a={ CF$UID=I:11 } } "},
        {binaryOfObjects({"140000000000000000ffffffffffffffff"}), "I:18446744073709551615 "},
        {binaryOfObjects({"13ffffffffffffffff"}), "I:-1 "},
        {binaryOfObjects({"6100e9"}), "S:\u00E9 "},
        {binaryOfObjects({"a100"}), "0: binary list: nested deeper than 512"},
        {binaryOfObjects({"a101", "a100"}), "0: binary list: nested deeper than 512"},
        {binaryOfObjects({"a107"}), "0: binary list: object 7 lies outside the file"},
        {binaryOfObjects({"af13ffffffffffffffff"}),
         "0: binary list: object 0 lies outside the file"},
        {binaryOfObjects({"5f13ffffffffffffffff"}),
         "0: binary list: object 0 lies outside the file"},
        {binaryOfObjects({"d10102", "526100", "09"}), "0: binary list: a key with a NUL inside"},
        {binaryOfObjects(bomb), "0: binary list: unfolds to more than 67108864 bytes"},
        {"bplist00", "0: binary list: damaged trailer"},
        {"bplist00" + trailer, "0: binary list: damaged trailer"},
        {binaryOfObjects({"a101", "09"}).chopped(1), "0: binary list: damaged trailer"},
    };
    for (const auto &[contents, expected] : cases)
        EXPECT_EQ(told(contents), expected) << contents.toHex().constData();
}

TEST_F(PropertyListFile, ABinaryListWithAnyByteChangedIsReadOrRefused)
{
    const QByteArray good = binaryOf(QVariantMap{
        {QStringLiteral("list"), QVariantList{1, QStringLiteral("x\u20AC"), 0.5, QByteArray("ab")}},
        {QStringLiteral("date"), QDateTime::fromSecsSinceEpoch(0, Qt::UTC)}});
    for (qsizetype at = 8; at < good.size(); ++at) {
        for (const int byte : {0x00, 0x0F, 0x1F, 0x33, 0x4F, 0x5F, 0x7F, 0x80, 0xA1, 0xD1, 0xFF}) {
            QByteArray damaged = good;
            damaged[at] = char(byte);
            EXPECT_NE(told(damaged), "0: ") << at << ' ' << byte;
        }
    }
}

TEST_F(PropertyListFile, WhatIsNoFileOrTooLong)
{
    Recorder recorder;
    PropertyListError error{QStringLiteral("old"), 1};
    EXPECT_FALSE(readPropertyList(path, 100, recorder, &error));
    EXPECT_FALSE(error);
    EXPECT_FALSE(readPropertyList(folder.path(), 100, recorder, &error));
    EXPECT_EQ(error.text, QStringLiteral("Is a directory"));
    ASSERT_EQ(::mkfifo(qPrintable(path), 0600), 0);
    EXPECT_FALSE(readPropertyList(path, 100, recorder, &error)); // and does not wait for a writer
    EXPECT_TRUE(error);
    const QString longer = folder / QStringLiteral("long.plist");
    writeFile(longer, document("<true/>"));
    EXPECT_FALSE(readPropertyList(longer, 100, recorder, &error));
    EXPECT_EQ(error.in(longer), longer + QStringLiteral(": the file is longer than 100 bytes"));
    EXPECT_EQ(recorder.told, "");
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

TEST_F(PropertyListFile, EveryTypeComesBackFromXmlAndBinary)
{
    ASSERT_TRUE(PropertyList::writeAtomically(everyType(), path));
    const QByteArray xml = readFile(path);
    for (const QByteArray &contents : {xml, binaryOf(everyType())}) {
        writeFile(path, contents);
        PropertyListError error;
        const auto read = PropertyList::read(path, PropertyList::defaultLimit, &error);
        ASSERT_TRUE(read) << qPrintable(error.text);
        const QVariantMap expected = everyType();
        for (auto entry = expected.begin(); entry != expected.end(); ++entry) {
            const QVariant found = read->toMap().value(entry.key());
            EXPECT_EQ(found.typeId(), entry->typeId()) << qPrintable(entry.key());
            EXPECT_EQ(found, *entry) << qPrintable(entry.key());
        }
        EXPECT_EQ(PropertyList::toXml(*read), xml);
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
    EXPECT_EQ(PropertyList::read(path), QVariant(expected));

    QString reason;
    EXPECT_TRUE(PropertyList::toXml({}).isEmpty());
    EXPECT_FALSE(PropertyList::writeAtomically({}, path, &reason));
    EXPECT_FALSE(reason.isEmpty());
    EXPECT_EQ(PropertyList::read(path), QVariant(expected)); // the old file stays
}

TEST_F(PropertyListFile, StringArraysLeaveOtherTypesOutAndNameUnusableFiles)
{
    SystemLogCapture log;
    EXPECT_FALSE(PropertyList::readStringArray(path));
    EXPECT_TRUE(log.lines().isEmpty());
    writeFile(path, document("<array><string>b</string><true/><string>a</string></array>"));
    EXPECT_EQ(PropertyList::readStringArray(path),
              (QStringList{QStringLiteral("b"), QStringLiteral("a")}));
    EXPECT_TRUE(log.lines().isEmpty());
    writeFile(path, document("<dict/>"));
    EXPECT_FALSE(PropertyList::readStringArray(path));
    EXPECT_TRUE(log.contains(path + QStringLiteral(": its root is no array")));
    writeFile(path, document("<array>\n<nil/></array>"));
    EXPECT_FALSE(PropertyList::readStringArray(path));
    EXPECT_TRUE(log.contains(path + QStringLiteral(":5: <nil> where a value belongs")));
}

TEST(PropertyListScalar, IntegersOfBothRanges)
{
    const struct
    {
        const char *text;
        std::optional<std::int64_t> number;
    } cases[] = {
        {"12", 12},
        {" -12\n", -12},
        {"0x10", 16},
        {"-0x10", -16},
        {"18446744073709551615", std::nullopt},
        {"12a", std::nullopt},
        {"", std::nullopt},
        {"-9223372036854775808", std::numeric_limits<std::int64_t>::min()},
    };
    for (const auto &[text, number] : cases) {
        bool ok = false;
        EXPECT_EQ((PropertyListScalar{PropertyListType::Integer, text}.toInteger(&ok)),
                  number.value_or(0))
            << text;
        EXPECT_EQ(ok, number.has_value()) << text;
    }
    bool ok = true;
    EXPECT_EQ((PropertyListScalar{PropertyListType::String, "12"}.toInteger(&ok)), 0);
    EXPECT_FALSE(ok);
}

} // namespace
