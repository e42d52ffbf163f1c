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
    } cases[] = {
        {QStringLiteral("Apple Lossless audio file"), QStringLiteral("*Lossless*"), true},
        {QStringLiteral("apple lossless"), QStringLiteral("*Lossless*"), false},
        {QStringLiteral("MP3"), QStringLiteral("mp3"), false},
        {QString(), QString(), true},
        {QString(), QStringLiteral("**"), true},
        {QString(), QStringLiteral("?"), false},
        {QStringLiteral("x"), QString(), false},
        {QStringLiteral("abc"), QStringLiteral("a?c"), true},
        {QStringLiteral("ac"), QStringLiteral("a?c"), false},
        {QStringLiteral("abc"), QStringLiteral("ab"), false},
        {QStringLiteral("abcabd"), QStringLiteral("*abd"), true},
        {QStringLiteral("aXbXc"), QStringLiteral("a*b*c"), true},
        {QStringLiteral("aXbX"), QStringLiteral("a*b*c"), false},
        {QStringLiteral("a\nb\r"), QStringLiteral("a*b*"), true},
        {QStringLiteral("[Profile]"), QStringLiteral("\\[*\\]"), true},
        {QStringLiteral("a*c"), QStringLiteral("a\\*c"), true},
        {QStringLiteral("abc"), QStringLiteral("a\\*c"), false},
        {QStringLiteral("abc"), QStringLiteral("a\\?c"), false},
        {QStringLiteral("a\\"), QStringLiteral("*\\"), true},
        {QStringLiteral("a"), QStringLiteral("a\\*"), false},
        // Would take for ever with a matcher that tries every split.
        {QString(3000, u'a'), QStringLiteral("a*").repeated(500) + u'b', false},
    };
    for (const auto &c : cases) {
        const auto name = c.text.left(40) + QStringLiteral(" ~ ") + c.pattern.left(40);
        EXPECT_EQ(isLike(c.text, c.pattern), c.like) << name.toStdString();
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
