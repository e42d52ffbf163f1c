#include "platform/lists/NumberArchive.h"

#include <gtest/gtest.h>

namespace {

/// One whose number has the type code and the bytes, given in hexadecimal.
QByteArray archive(char code, const char *number,
                   const QByteArray &start = "streamtyped\x81\xe8\x03")
{
    return "\x04\x0b" + start +
           QByteArray::fromHex(
               "840140848484084e534e756d626572008484074e5356616c7565008484084e534f62"
               "6a6563740085"
               "84012a848401") +
           code + '\x97' + QByteArray::fromHex(number) + '\x86';
}

TEST(NumberArchive, EncodesEachSizeInItsShortestForm)
{
    const std::pair<quint64, const char *> cases[] = {

        {0x7F, "7f"},
        {0x80, "818000"},

        {0x7FFF, "81ff7f"},
        {0x8000, "8200800000"},
        {0x7FFFFFFF, "82ffffff7f"},
        {0x80000000, "870000008000000000"},
        {~quint64(0), "87ffffffffffffffff"},
    };
    for (const auto &[number, bytes] : cases) {
        EXPECT_EQ(NumberArchive::encode(number).toHex(), archive('Q', bytes).toHex()) << number;
        EXPECT_EQ(NumberArchive::decode(archive('Q', bytes)), number) << bytes;
    }
}

TEST(NumberArchive, ReadsEveryTypeCodeInBothByteOrders)
{
    const QByteArray big = "typedstream\x81\x03\xe8";
    const std::pair<QByteArray, std::optional<quint64>> cases[] = {
        {archive('i', "82e8030000"), 1000},
        {archive('i', "82000003e8", big), 1000},

        {archive('Q', "87ffffffffffffff00", big), 0xFFFFFFFFFFFFFF00},

        {archive('I', "82ffffffff"), 0xFFFFFFFF},

        {archive('C', "81"), 0x81}, // characters stand raw, whatever they look like

        {archive('c', "01"), 1},
        {archive('Q', "07", "streamtyped\x05"), 7},
        // No size is negative.
        {archive('c', "ff"), std::nullopt},
        {archive('i', "c8"), std::nullopt},

        {archive('q', "87ffffffffffffffff", big), std::nullopt},
        // None at all.
        {{}, std::nullopt},
        {archive('d', "07"), std::nullopt},

        {archive('Q', "91"), std::nullopt},
        {archive('Q', "8700"), std::nullopt},
        {archive('Q', "07") + '\0', std::nullopt},

        {archive('Q', "07").replace("NSNumber", "NSString"), std::nullopt},
        {archive('Q', "07", "streamtypes\x05"), std::nullopt},
    };
    for (const auto &[bytes, number] : cases)
        EXPECT_EQ(NumberArchive::decode(bytes), number) << bytes.toHex().constData();
}

} // namespace
