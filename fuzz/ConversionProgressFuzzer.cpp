#include "fuzz/Home.h"
#include "modules/movies/ConversionProgress.h"

// The first byte decides the quality; a NUL ends a chunk.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray input = bytesOf(data, size);
    ConversionProgress progress(input.startsWith('0') ? 0 : 1);
    for (const QByteArray &chunk : input.mid(1).split('\0')) {
        const quint32 before = progress.totalFrames();
        promise(progress.take(chunk, true) == chunk.startsWith("frame="),
                "chunks of progress are known");
        promise(!progress.text().isEmpty(), "there is always a text");
        promise(before == 0 || progress.totalFrames() == before, "the duration is learnt once");
    }
    return 0;
}
