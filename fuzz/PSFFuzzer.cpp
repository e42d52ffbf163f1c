#include "fuzz/Home.h"
#include "util/PSFParser.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto values = PSFParser::dictionaryWithPSF(bytesOf(data, size));
    if (!values)
        return 0;
    for (const QString &value : *values)
        promise(value.toUtf8().size() <= 511, "no text is longer than 511 bytes");
    return 0;
}
