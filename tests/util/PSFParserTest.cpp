#include "util/PSFParser.h"

#include "support/PSFFile.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

namespace {

class PSFParserTest : public testing::Test
{
protected:
    TemporaryFolder folder;
    const QString path = folder / QStringLiteral("PARAM.SFO");
    static auto parse(const QByteArray &contents) { return PSFParser::dictionaryWithPSF(contents); }
};

} // namespace

TEST_F(PSFParserTest, ReadsEveryTypeAsText)
{
    PSFFile file;
    file.add("TITLE", 2, QByteArray("Caf\xc3\xa9\0junk", 10));
    file.add("LONG", 2, QByteArray(600, 'x'));
    file.add("SPLIT", 2, QByteArray(510, 'x') + "\xc3\xa9");
    file.add("MINUS", 4, QByteArray(4, '\xff'));
    file.add("ONE", 4, le32(1));
    file.add("BLOB", 0, "\xff\xff");
    file.add("OTHER", 1, "x");
    file.add("TWICE", 2, "first");
    file.add("TWICE", 2, "second");
    file.add("DROPPED", 2, "first");
    file.add("DROPPED", 2, "\xff\xfe");
    const QMap<QString, QString> expected{
        {QStringLiteral("TITLE"), QStringLiteral("Café")},
        {QStringLiteral("LONG"), QString(511, u'x')},
        {QStringLiteral("MINUS"), QStringLiteral("-1")},
        {QStringLiteral("ONE"), QStringLiteral("1")},
        {QStringLiteral("BLOB"), QStringLiteral("Binary")},
        {QStringLiteral("OTHER"), QStringLiteral("Unknown")},
        {QStringLiteral("TWICE"), QStringLiteral("second")},
    };
    EXPECT_EQ(parse(file.contents()), expected);
    EXPECT_EQ(parse(PSFFile().contents()), (QMap<QString, QString>()));
}

TEST_F(PSFParserTest, RefusesWhatIsNone)
{
    EXPECT_FALSE(PSFParser::dictionaryWithPSFFile(folder / QStringLiteral("missing")));
    EXPECT_FALSE(PSFParser::dictionaryWithPSFFile(folder.path()));
    EXPECT_FALSE(parse("PSF\0 and more than a header's bytes"));
    writeFile(path, PSFFile().contents());
    EXPECT_TRUE(PSFParser::dictionaryWithPSFFile(path));
    writeFile(path, PSFFile().contents() + QByteArray(1 << 20, '\0'));
    EXPECT_FALSE(PSFParser::dictionaryWithPSFFile(path)) << "too long";
}

TEST_F(PSFParserTest, NeverReadsOutsideTheFile)
{
    PSFFile file;
    file.add("TITLE", 2, "Sailing");
    file.add("SCORE", 4, le32(7));
    file.add("DATA", 0, "x");
    const QByteArray good = file.contents();
    const auto whole = *parse(good);
    // (Under the address sanitizer this is where a read beyond the end shows.)
    for (qsizetype length = 0; length < good.size(); ++length) {
        const auto part = parse(good.first(length));
        EXPECT_EQ(part.has_value(), length >= 20) << length;
        const QMap<QString, QString> found = part.value_or(QMap<QString, QString>());
        for (auto value = found.begin(); value != found.end(); ++value)
            EXPECT_EQ(whole.value(value.key()), value.value()) << length;
    }
    for (qsizetype at = 0; at < 20 + 3 * 16; ++at) {
        for (int change = 1; change < 256; ++change) {
            QByteArray bad = good;
            bad[at] = static_cast<char>(bad[at] ^ change);
            const auto found = parse(bad);
            EXPECT_EQ(found.has_value(), at >= 4) << at;
            EXPECT_LE(found.value_or(QMap<QString, QString>()).size(), 3) << at;
        }
    }
    QByteArray endless = good;
    endless.replace(16, 4, QByteArray(4, '\xff'));
    endless.replace(8, 8, QByteArray(8, '\xff')); // both tables beyond 4 GiB
    EXPECT_LE(parse(endless)->size(), 3);
}
