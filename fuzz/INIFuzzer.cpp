#include "fuzz/Home.h"
#include "util/QMINIParser.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray contents = bytesOf(data, size);
    const auto values =
        QMINIParser::parseINI(Home::instance().write(QStringLiteral("profiles.ini"), contents))
            .valueOr({});
    qsizetype total = 0;
    for (const QString &value : values)
        total += value.size();
    promise(values.size() <= contents.count('\n') + contents.count('\r') + 1 &&
                total <= 2 * contents.size(),
            "values are pieces of the file, at most one a line");
    for (auto value = values.begin(); value != values.end(); ++value)
        promise(value.key().contains(u'-'), "keys carry their section");
    return 0;
}
