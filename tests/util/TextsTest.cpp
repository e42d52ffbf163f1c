#include "util/ByteCount.h"
#include "util/Entities.h"
#include "util/Filename.h"
#include "util/QMMD5Hasher.h"
#include "util/StringTools.h"

#include <gtest/gtest.h>

using namespace StringTools;
using namespace FileManagerTools;

namespace {

/// Inputs and what becomes of them, in UTF-8.
using Cases = std::initializer_list<std::pair<const char *, const char *>>;

template <typename Function>
void expectEach(Cases cases, Function function)
{
    for (const auto &[text, result] : cases)
        EXPECT_EQ(function(QString::fromUtf8(text)), QString::fromUtf8(result)) << text;
}

} // namespace

TEST(Texts, HaveTheirEntitiesReplacedOnce)
{
    expectEach({{"Fish &amp; &lt;Chips&gt; &quot;now&apos;", "Fish & <Chips> \"now'"},
                {"&amp;lt;", "&lt;"},
                {"&nbsp;|&#160;|&#xA0;|&shy;|&#173;", " | |\u00A0|-\u00AD|-\u00AD"},
                {"&iexcl;&macr;&deg;&iquest;&Agrave;&times;&szlig;&agrave;&divide;&yuml;",
                 "\u00A1\u00AF\u00B0\u00BF\u00C0\u00D7\u00DF\u00E0\u00F7\u00FF"},
                {"&frac14;&sup2;&THORN;&thorn;&ETH;&eth;", "\u00BC\u00B2\u00DE\u00FE\u00D0\u00F0"},
                {"&mdash;&#8212;&#8364;", "\u2014\u2014\u20AC"},
                {"&#32;&#47;&#58;&#64;&#91;&#95;&#123;&#126;", " /:@[_{~"},
                {"&#96;&#65;&#x41;&#X2f;&#x1F600;&#0066;", "`AA/\U0001F600B"},
                {"&#9;&#10;&#13;", "\t\n\r"},
                {"&euro;&AMP;&Nbsp;&;&#;&#x;", "&euro;&AMP;&Nbsp;&;&#;&#x;"},
                {"&#0;&#1;&#xD800;&#xFFFE;&#x110000;&#99999999999;&#-5;&#+5;&#x0x41;&##65;&#4a;",
                 "&#0;&#1;&#xD800;&#xFFFE;&#x110000;&#99999999999;&#-5;&#+5;&#x0x41;&##65;&#4a;"},
                {"&amp &amp;amp;&&amp;&am p;&amp", "&amp &amp;&&&am p;&amp"},
                {"&\u00E4;&auml;", "&\u00E4;\u00E4"}},
               stringByParsingEntities);
}

TEST(Texts, BecomeFileNames)
{
    expectEach({{"", ""},
                {"AC/DC: Live?", "AC_DC_ Live_"},
                {":/?<>|*\\", "________"},
                {"say \"hi\"", "say 'hi'"},
                {"The End...", "The End.._"},
                {"The End. ", "The End."},
                {"  a\tb\r\n", "a\tb"},
                {".", "_"},
                {"Motörhead?", "Moto\u0308rhead_"},
                {"Élan.", "E\u0301lan_"},
                {"\u00a0\u3000é. \u2028", "e\u0301."}},
               makeFilename);
}

TEST(Texts, AreMatchedByWildcards)
{
    const struct
    {
        bool isLike;
        const char *text;
        std::vector<const char *> patterns;
    } cases[] = {
        {true, "Apple Lossless audio file", {"*Lossless*", "Apple*", "*?file", "**"}},
        {true, "", {"", "**"}},
        {true, "abcabd", {"*abd", "a?cabd", "a*b*d"}},
        {true, "a\nb\r", {"a*b*"}},
        {true, "[a*c]\\", {"\\[a\\*c\\]*\\"}},
        {false, "apple lossless", {"*Lossless*"}},
        {false, "", {"?"}},
        {false, "abc", {"", "ab", "abc?", "a\\*c", "a\\?c", "a*b"}},
    };
    for (const auto &c : cases)
        for (const char *pattern : c.patterns)
            EXPECT_EQ(isLike(QString::fromUtf8(c.text), QString::fromUtf8(pattern)), c.isLike)
                << pattern;
    // Takes for ever with a matcher that tries every split.
    EXPECT_FALSE(isLike(QString(3000, u'a'), QStringLiteral("a*").repeated(500) + u'b'));
}

TEST(Texts, AreJoinedAndNormalisedToPaths)
{
    const std::string home = qgetenv("HOME").toStdString();
    expectEach({{"~", home.c_str()}, {"~/Music", (home + "/Music").c_str()}, {"/a/~", "/a/~"}},
               expandingTilde);
    expectEach(
        {{"/a/./b//c/", "/a/b/c"}, {"/a/../../b", "/b"}, {"/..", "/"}, {"//a/...", "/a/..."}},
        standardizingPath);
    expectEach(
        {{"/a", "/a/b/c"}, {"/a//", "/a/b/c"}, {"/", "/b/c"}, {"", "b/c"}},
        [](const QString &path) { return appendingPathComponent(path, QStringLiteral("b/c")); });
    EXPECT_EQ(appendingPathComponent(QStringLiteral("/a"), QStringLiteral("/b")), u"/a/b");
    EXPECT_EQ(appendingPathComponent(QStringLiteral("/a"), {}), u"/a");
}

TEST(Texts, TellByteCounts)
{
    const std::pair<std::optional<quint64>, const char *> cases[] = {
        {std::nullopt, "--"},
        {0, "--"},
        {1024, "1024 b"},
        {1025, "1.0 KB"},
        {1280, "1.2 KB"}, // a tie goes to the even digit
        {1048577, "1.0 MB"},
        {1610612736, "1.5 GB"},
        {1099511627776, "1024.0 GB"},
        {~quint64(0), "16777216.0 TB"},
    };
    for (const auto &[bytes, text] : cases)
        EXPECT_EQ(sizeDescriptionForByteCount(bytes), QString::fromUtf8(text));
}

TEST(Texts, HaveDigests)
{
    expectEach({{"", "d41d8cd98f00b204e9800998ecf8427e"},
                {"message digest", "f96b697d7cb7938d525a2f31aaf161d0"},
                {"gr\xC3\xBC\xC3\x9F", "692bacb128e85178b81336d84567a608"}},
               QMMD5Hasher::hashFromString);
    EXPECT_EQ(QMMD5Hasher::hashFromBytes(QByteArray("\0", 1)),
              QStringLiteral("93b885adfe0da089cdf634904fd59f71"));
}
