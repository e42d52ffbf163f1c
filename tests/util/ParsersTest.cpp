#include "util/PSFParser.h"
#include "util/QMINIParser.h"
#include "util/TextFile.h"

#include "support/PSFFile.h"
#include "support/TestSupport.h"

#include <QFile>

#include <gtest/gtest.h>

TEST(PSFParser, ReadsEveryTypeAsText)
{
    const struct
    {
        const char *key;
        char type;
        QByteArray data;
        const char *text; // null: left out
        std::optional<quint32> length = {};
    } cases[] = {
        {"A", 2, QByteArray("Caf\xc3\xa9\0junk", 10), "Café"},
        {"B", 2, "Game Save", "Game", 4},
        {"C", 2, QByteArray(510, 'x') + "\xc3\xa9", nullptr}, // cut within a character
        {"D", 4, QByteArray(4, '\xff'), "-1"},
        {"E", 4, le32(1), "1"},
        {"F", 0, "\xff\xff", "Binary"},
        {"G", 1, "x", "Unknown"},
        {"H", 2, "first", nullptr},
        {"H", 2, "last", "last"},
        {"I", 2, "first", nullptr},
        {"I", 2, "\xff\xfe", nullptr},
        {"J", 2, "without an end", nullptr, 100}, // so much isn't in the file
    };
    PSFFile file;
    file.add("LONG", 2, QByteArray(600, 'x'));
    QMap<QString, QString> expected{{QStringLiteral("LONG"), QString(511, u'x')}};
    for (const auto &c : cases) {
        file.add(c.key, c.type, c.data, c.length);
        if (c.text)
            expected.insert(QString::fromLatin1(c.key), QString::fromUtf8(c.text));
    }
    EXPECT_EQ(PSFParser::dictionaryWithPSF(file.contents()), expected);
}

TEST(PSFParser, RefusesWhatIsNone)
{
    const TemporaryFolder folder;
    const QByteArray good = PSFFile().contents();
    writeFile(folder / "good", good);
    writeFile(folder / "long", good + QByteArray(1 << 20, '\0'));
    writeFile(folder / "short", good.first(19));
    writeFile(folder / "other", "PSF\0 and more than a header's bytes");
    EXPECT_TRUE(PSFParser::dictionaryWithPSFFile(folder / "good"));
    for (const char *name : {"none", "long", "short", "other", "."})
        EXPECT_FALSE(PSFParser::dictionaryWithPSFFile(folder / name)) << name;
}

TEST(QMINIParser, NamesValuesBySectionAndKey)
{
    const std::pair<QByteArray, const char *> cases[] = {
        {"", ""},
        {"[General]\nName=a=b\n\n[Profile0]\nPath=Profiles/abc.default",
         "General-Name=a=b|Profile0-Path=Profiles/abc.default"},
        {"early=1\n[]\nlate=2\n", "-early=1|-late=2"},
        {"[a]\nk=1\nk=2\n[b]\nk=3\n[a]\nk=4\n", "a-k=4|b-k=3"},
        {"[ a ]\n k = v \n; no=comment\nnothing\n", " a - k = v | a -; no=comment"},
        {"[a=b]\n=empty key\nempty value=\n", "a=b-=empty key|a=b-empty value="},
        {"[\n]\n[x] \nk=1\n [y]\nl=2\n", "-k=1|-l=2"},
        {"[a]\r\nk=v\r\n", "-k=v\r"},
        {"\xEF\xBB\xBF[a]\nk=\xC3\xA4\n", "a-k=\u00E4"},
        {QByteArray("\xFF\xFE[\0a\0]\0\n\0k\0=\0\xE4\0", 16), "a-k=\u00E4"},
        {"[a]\nk=\xE4\n", "a-k=\u00E4"},
    };
    const TemporaryFolder folder;
    for (const auto &[text, expected] : cases) {
        writeFile(folder / "test.ini", text);
        QStringList seen;
        const auto values = QMINIParser::parseINI(folder / "test.ini").valueOr({});
        for (auto value = values.begin(); value != values.end(); ++value)
            seen.append(value.key() + u'=' + value.value());
        seen.sort();
        EXPECT_EQ(seen.join(u'|'), QString::fromUtf8(expected));
    }
}

TEST(TextFile, SaysWhatItCannotRead)
{
    const TemporaryFolder folder;
    const QString path = folder / "some.txt";
    const SystemLogCapture log;
    EXPECT_FALSE(TextFile::read(path));
    EXPECT_TRUE(log.lines().isEmpty()) << "a missing file is no fault";
    writeFile(path, "12345");
    EXPECT_EQ(TextFile::read(path, 5).valueOr({}), QStringLiteral("12345"));
    EXPECT_FALSE(TextFile::read(path, 4));
    EXPECT_TRUE(log.contains(path + QStringLiteral(" which is longer than 4 bytes")));
    ASSERT_TRUE(QFile::resize(path, (64 << 20) + 1));
    EXPECT_FALSE(TextFile::read(path));
    EXPECT_FALSE(TextFile::read(folder.path()));
    EXPECT_TRUE(log.contains(QStringLiteral("Can't read ") + folder.path()));
}
