#include "util/Entities.h"

#include <gtest/gtest.h>

using StringTools::stringByParsingEntities;

namespace {

QString parsed(const char *text)
{
    return stringByParsingEntities(QString::fromUtf8(text));
}

} // namespace

TEST(Entities, ReplacesNamesAndNumbers)
{
    const char *const cases[][2] = {
        {"", ""},
        {"plain & simple; text", "plain & simple; text"},
        {"Fish &amp; &lt;Chips&gt; &quot;now&apos;", "Fish & <Chips> \"now'"},
        {"&amp;lt;", "&lt;"},
        {"&nbsp;|&#160;|&#xA0;", " | |\u00A0"},
        {"&shy;|&#173;", "-\u00AD|-\u00AD"},
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
        {"&\u00E4;&auml;", "&\u00E4;\u00E4"},
    };
    for (const auto &[text, result] : cases)
        EXPECT_EQ(parsed(text), QString::fromUtf8(result)) << text;
}

TEST(Entities, TakesLongTextsInOneGo)
{
    constexpr qsizetype length = 1 << 20;
    for (const QString &text :
         {QString(length, u'&'), u'&' + QString(length, u'a') + u';',
          QStringLiteral("&#") + QString(length, u'0') + QStringLiteral("65;")})
        EXPECT_TRUE(stringByParsingEntities(text) == text);
    EXPECT_EQ(stringByParsingEntities(QStringLiteral("&lt;").repeated(length / 4)).size(),
              length / 4);
}
