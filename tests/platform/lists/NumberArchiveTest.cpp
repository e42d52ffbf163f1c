#include "platform/lists/NumberArchive.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <vector>

namespace {

const char classes[] = "840140"
                       "848484084e534e756d62657200"
                       "8484074e5356616c756500"
                       "8484084e534f626a65637400"
                       "85"
                       "84012a";

QByteArray archive(const char *signature, const char *version, char code, const char *number)
{
    return QByteArray::fromHex("040b") + signature + QByteArray::fromHex(version) +
           QByteArray::fromHex(classes) + QByteArray::fromHex("848401") + code +
           QByteArray::fromHex("97") + QByteArray::fromHex(number) + QByteArray::fromHex("86");
}

QByteArray little(char code, const char *number)
{
    return archive("streamtyped", "81e803", code, number);
}

QByteArray big(char code, const char *number)
{
    return archive("typedstream", "8103e8", code, number);
}

/// A copy whose end is the end of its memory, so that a sanitizer sees a read behind it.
std::optional<quint64> decodeExact(const QByteArray &bytes)
{
    const std::vector<char> exact(bytes.begin(), bytes.end());
    return NumberArchive::decode(QByteArray::fromRawData(exact.data(), qsizetype(exact.size())));
}

TEST(NumberArchive, EncodesEachSizeInItsShortestForm)
{
    const struct
    {
        quint64 number;
        const char *bytes;
    } cases[] = {
        {0, "00"},
        {0x7F, "7f"},
        {0x80, "818000"},
        {0x91, "819100"},
        {0x92, "819200"},
        {0xFF, "81ff00"},
        {0x7FFF, "81ff7f"},
        {0x8000, "8200800000"},
        {490943283, "823333431d"},
        {0x7FFFFFFF, "82ffffff7f"},
        {0x80000000, "870000008000000000"},
        {std::numeric_limits<quint64>::max(), "87ffffffffffffffff"},
    };
    for (const auto &[number, bytes] : cases) {
        EXPECT_EQ(NumberArchive::encode(number).toHex(), little('Q', bytes).toHex()) << number;
        EXPECT_EQ(decodeExact(little('Q', bytes)), number) << bytes;
    }
}

TEST(NumberArchive, ReadsEveryTypeCodeInBothByteOrders)
{
    const struct
    {
        QByteArray bytes;
        std::optional<quint64> number;
    } cases[] = {
        {little('i', "82e8030000"), 1000},
        {big('i', "82000003e8"), 1000},
        {big('Q', "8103e8"), 1000},
        {big('q', "870000000100000000"), 0x100000000},
        {big('Q', "87ffffffffffffff00"), 0xFFFFFFFFFFFFFF00},
        {little('s', "817f00"), 127},
        {little('l', "05"), 5},
        {little('L', "05"), 5},
        {little('I', "82ffffffff"), 0xFFFFFFFF},
        {little('S', "81ffff"), 0xFFFF},
        {little('Q', "c8"), 200},
        // Characters stand raw, whatever they look like.
        {little('C', "81"), 0x81},
        {little('C', "81c800"), 200},
        {little('c', "01"), 1},
        // No size is negative.
        {little('c', "ff"), std::nullopt},
        {little('i', "c8"), std::nullopt},
        {little('s', "81ffff"), std::nullopt},
        {big('q', "87ffffffffffffffff"), std::nullopt},
        {archive("streamtyped", "05", 'Q', "07"), 7},
    };
    for (const auto &[bytes, number] : cases)
        EXPECT_EQ(decodeExact(bytes), number) << bytes.toHex().constData();
}

TEST(NumberArchive, RefusesWhatIsNoSuchArchive)
{
    const QByteArray good = little('Q', "87efcdab8967452301");
    const QByteArray cases[] = {
        {},
        "12345",
        little('d', "07"),
        little('@', "07"),
        little('Q', "80"),
        little('Q', "83"),
        little('Q', "85"),
        little('Q', "91"),
        good + '\0',
        QByteArray(good).replace("NSNumber", "NSString"),
        QByteArray(good).replace("streamtyped", "streamtypes"),
        QByteArray(good).replace(0, 1, "\x05"),
    };
    for (const QByteArray &bytes : cases)
        EXPECT_FALSE(decodeExact(bytes)) << bytes.toHex().constData();
    for (qsizetype length = 0; length < good.size(); ++length)
        EXPECT_FALSE(decodeExact(good.left(length))) << length;
}

TEST(NumberArchive, DamagedBytesNeverLeadOutsideOrToAnUnnoticedOtherStructure)
{
    const QByteArray good = little('Q', "870100000000000000");
    const qsizetype numberAt = good.size() - 9;
    for (qsizetype at = 0; at < good.size(); ++at) {
        for (int byte = 0; byte < 256; ++byte) {
            QByteArray damaged = good;
            damaged[at] = char(byte);
            const bool isNumber = at >= numberAt && at < good.size() - 1;
            const bool isVersion = at >= 14 && at < 16; // either of the version's two bytes
            const bool isTypeCode = at == numberAt - 3;
            const auto number = decodeExact(damaged);
            if (number && damaged != good && !isNumber && !isVersion && !isTypeCode)
                ADD_FAILURE() << "byte " << at << " changed to " << byte << " went unnoticed";
        }
    }
    std::mt19937 random(1);
    for (int round = 0; round < 20000; ++round) {
        QByteArray tail = good.left(qsizetype(random() % size_t(good.size())));
        for (auto left = random() % 20; left > 0; --left)
            tail += char(random());
        decodeExact(tail);
    }
}

} // namespace
