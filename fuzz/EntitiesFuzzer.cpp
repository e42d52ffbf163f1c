#include "fuzz/Home.h"
#include "util/Entities.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = QString::fromUtf8(bytesOf(data, size));
    const QString parsed = StringTools::stringByParsingEntities(text);
    promise(parsed.size() <= text.size(), "no replacement is longer than its reference");
    promise(text.contains(u'&') || parsed == text, "text without references stays");
    // Escaped once more, it reads as before.
    QString escaped = text;
    escaped.replace(u'&', QStringLiteral("&amp;"));
    promise(StringTools::stringByParsingEntities(escaped) == text, "references are replaced once");
    return 0;
}
