#include "util/QMINIParser.h"

#include "support/TestSupport.h"
#include "util/TextFile.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {

/// The values as "name=value", sorted, with "\r" shown as "^M".
QStringList parsed(const QString &path)
{
    QStringList lines;
    const auto values = QMINIParser::parseINI(path);
    for (auto value = values.begin(); value != values.end(); ++value)
        lines.append(
            QString(value.key() + u'=' + value.value()).replace(u'\r', QStringLiteral("^M")));
    lines.sort();
    return lines;
}

} // namespace

TEST(QMINIParser, NamesValuesBySectionAndKey)
{
    const struct
    {
        QByteArray text;
        const char *values; // one a line
    } cases[] = {
        {"", ""},
        {"[General]\nName=a=b\n\n[Profile0]\nPath=Profiles/abc.default",
         "General-Name=a=b\nProfile0-Path=Profiles/abc.default"},
        {"early=1\n[]\nlate=2\n", "-early=1\n-late=2"},
        {"[a]\nk=1\nk=2\n[b]\nk=3\n[a]\nk=4\n", "a-k=4\nb-k=3"},
        {"[ a ]\n k = v \n; no=comment\nnothing\n", " a - k = v \n a -; no=comment"},
        {"[a=b]\n=empty key\nempty value=\n", "a=b-=empty key\na=b-empty value="},
        {"[\n]\n[x] \nk=1\n [y]\nl=2\n", "-k=1\n-l=2"},
        {"[a]\r\nk=v\r\n", "-k=v^M"},
        {"\xEF\xBB\xBF[a]\nk=\xC3\xA4\n", "a-k=\u00E4"},
        {QByteArray("\xFF\xFE[\0a\0]\0\n\0k\0=\0\xE4\0", 16), "a-k=\u00E4"},
        {"[a]\nk=\xE4\n", "a-k=\u00E4"},
        {"[a]\nk=" + QByteArray(10 << 20, 'x').replace(5, 1, "[") + "\nl=1\n[" +
             QByteArray(10 << 20, ']'),
         nullptr},
    };
    const TemporaryFolder folder;
    const QString path = folder / QStringLiteral("test.ini");
    for (const auto &c : cases) {
        writeFile(path, c.text);
        const QStringList values = parsed(path);
        if (c.values)
            EXPECT_EQ(values, QString::fromUtf8(c.values).split(u'\n', Qt::SkipEmptyParts));
        else
            EXPECT_EQ(values.mid(1), QStringList(QStringLiteral("a-l=1")));
    }
}

TEST(TextFile, SaysWhatItCannotRead)
{
    const TemporaryFolder folder;
    const QString path = folder / QStringLiteral("some.txt");
    const SystemLogCapture log;
    EXPECT_FALSE(TextFile::read(path));
    EXPECT_TRUE(log.lines().isEmpty()) << "a missing file is no fault";
    writeFile(path, "12345");
    EXPECT_EQ(TextFile::read(path, 5), QStringLiteral("12345"));
    EXPECT_FALSE(TextFile::read(path, 4));
    EXPECT_TRUE(log.contains(path + QStringLiteral(" which is longer than 4 bytes")));
    ASSERT_TRUE(QFile::resize(path, qint64(TextFile::defaultLimit) + 1));
    EXPECT_TRUE(QMINIParser::parseINI(path).isEmpty());
    EXPECT_FALSE(TextFile::read(folder.path()));
    EXPECT_TRUE(log.contains(QStringLiteral("Can't read ") + folder.path()));
}
