#include "util/StringTools.h"

#include <gtest/gtest.h>

using namespace StringTools;

TEST(StringTools, MatchesWildcards)
{
    const struct
    {
        QString text;
        QString pattern;
        bool like;
        bool anyCase;
    } cases[] = {
        {QStringLiteral("Apple Lossless audio file"), QStringLiteral("*Lossless*"), true, true},
        {QStringLiteral("apple lossless"), QStringLiteral("*Lossless*"), false, true},
        {QStringLiteral("MP3"), QStringLiteral("mp3"), false, true},
        {QStringLiteral("ÄÖ"), QStringLiteral("äö"), false, true},
        {QString(), QString(), true, true},
        {QString(), QStringLiteral("**"), true, true},
        {QString(), QStringLiteral("?"), false, false},
        {QStringLiteral("x"), QString(), false, false},
        {QStringLiteral("abc"), QStringLiteral("a?c"), true, true},
        {QStringLiteral("ac"), QStringLiteral("a?c"), false, false},
        {QStringLiteral("abc"), QStringLiteral("ab"), false, false},
        {QStringLiteral("abcabd"), QStringLiteral("*abd"), true, true},
        {QStringLiteral("aXbXc"), QStringLiteral("a*b*c"), true, true},
        {QStringLiteral("aXbX"), QStringLiteral("a*b*c"), false, false},
        {QStringLiteral("a\nb\r"), QStringLiteral("a*b*"), true, true},
        {QStringLiteral("[Profile]"), QStringLiteral("\\[*\\]"), true, true},
        {QStringLiteral("a*c"), QStringLiteral("a\\*c"), true, true},
        {QStringLiteral("abc"), QStringLiteral("a\\*c"), false, false},
        {QStringLiteral("abc"), QStringLiteral("a\\?c"), false, false},
        {QStringLiteral("a\\"), QStringLiteral("*\\"), true, true},
        {QStringLiteral("a"), QStringLiteral("a\\*"), false, false},
        // Would take for ever with a matcher that tries every split.
        {QString(3000, u'a'), QStringLiteral("a*").repeated(500) + u'b', false, false},
    };
    for (const auto &c : cases) {
        const auto name = c.text.left(40) + QStringLiteral(" ~ ") + c.pattern.left(40);
        EXPECT_EQ(isLike(c.text, c.pattern), c.like) << name.toStdString();
        EXPECT_EQ(isCaseInsensitiveLike(c.text, c.pattern), c.anyCase) << name.toStdString();
    }
}

TEST(StringTools, BuildsAndNormalisesPaths)
{
    const QString home = qEnvironmentVariable("HOME");
    EXPECT_EQ(expandingTilde(QStringLiteral("~")), home);
    EXPECT_EQ(expandingTilde(QStringLiteral("~/Music")), home + QStringLiteral("/Music"));
    EXPECT_EQ(expandingTilde(QStringLiteral("~other/x")), QStringLiteral("~other/x"));
    EXPECT_EQ(expandingTilde(QStringLiteral("/a/~")), QStringLiteral("/a/~"));

    const char *const joins[][3] = {{"/a", "b", "/a/b"},    {"/a/", "b/c", "/a/b/c"},
                                    {"/a//", "/b", "/a/b"}, {"/", "b", "/b"},
                                    {"", "b", "b"},         {"/a", "", "/a"}};
    for (const auto &join : joins)
        EXPECT_EQ(appendingPathComponent(QString::fromUtf8(join[0]), QString::fromUtf8(join[1])),
                  QString::fromUtf8(join[2]));

    const char *const paths[][2] = {
        {"/a/./b//c/", "/a/b/c"}, {"/a/../../b", "/b"}, {"/", "/"}, {"/..", "/"}, {"//a", "/a"},
        {"/a/...", "/a/..."}};
    for (const auto &path : paths)
        EXPECT_EQ(standardizingPath(QString::fromUtf8(path[0])), QString::fromUtf8(path[1]));
}
