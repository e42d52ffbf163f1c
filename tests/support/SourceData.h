#pragma once

#include "support/TestSupport.h"

/// What other programs wrote, as tests/modules/sources/make_data.py keeps it.
inline QByteArray sourceData(const char *name)
{
    const QByteArray packed =
        readFile(QStringLiteral(CARAVEL_SOURCES_FOLDER "/%1.z").arg(QLatin1StringView(name)));
    return qUncompress(packed);
}
