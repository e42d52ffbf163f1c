#include "fuzz/Home.h"
#include "platform/lists/NumberArchive.h"

#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (const auto number = NumberArchive::decode(bytesOf(data, size)))
        promise(NumberArchive::decode(NumberArchive::encode(*number)) == number,
                "a number that is archived again is the same");
    if (size == sizeof(quint64)) {
        quint64 number = 0;
        std::memcpy(&number, data, size);
        promise(NumberArchive::decode(NumberArchive::encode(number)) == number,
                "any number can be archived");
    }
    return 0;
}
