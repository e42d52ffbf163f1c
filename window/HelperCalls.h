#pragma once

#include "protocol/Protocol.h"

#include <QVariantList>

#include <functional>

class HelperConnection;
class QObject;

/// What a model needs of the helper's connection, of which it knows nothing else. See
/// HelperConnection for what each does.
struct HelperCalls
{
    using Answered = std::function<void(const QVariant &)>;

    std::function<void(const Protocol::Method &, const QVariantList &, QObject *, Answered)> ask;
    std::function<void(const Protocol::Method &, const QVariantList &)> tell;

    /// The connection outlives them.
    static HelperCalls of(HelperConnection *connection);
};
