#include "util/QMMD5Hasher.h"

#include <gtest/gtest.h>

TEST(QMMD5HasherTest, GivesTheKnownDigestsOfUtf8)
{
    // RFC 1321's own examples, and one beyond ASCII (by md5sum).
    const std::pair<const char *, const char *> cases[] = {
        {"", "d41d8cd98f00b204e9800998ecf8427e"},
        {"a", "0cc175b9c0f1b6a831c399e269772661"},
        {"message digest", "f96b697d7cb7938d525a2f31aaf161d0"},
        {"1234567890123456789012345678901234567890"
         "1234567890123456789012345678901234567890",
         "57edf4a22be3c955ac49da2e2107b67a"},
        {"gr\xC3\xBC\xC3\x9F", "692bacb128e85178b81336d84567a608"},
    };
    for (const auto &[text, digest] : cases)
        EXPECT_EQ(QMMD5Hasher::hashFromString(QString::fromUtf8(text)), QLatin1String(digest))
            << text;
    EXPECT_EQ(QMMD5Hasher::hashFromBytes(QByteArray("\0", 1)),
              QStringLiteral("93b885adfe0da089cdf634904fd59f71"));
}
