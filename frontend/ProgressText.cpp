#include "frontend/ProgressText.h"

#include "util/ByteCount.h"

#include <algorithm>
#include <cmath>

namespace {

QString size(quint64 bytes)
{
    return FileManagerTools::sizeDescriptionForByteCount(bytes);
}

} // namespace

QString ProgressText::duration(std::chrono::seconds time)
{
    const auto seconds = time.count();
    const auto minutes = seconds / 60;
    const QString end = QStringLiteral(":%1").arg(seconds % 60, 2, 10, QChar(u'0'));
    if (minutes < 60)
        return QString::number(minutes) + end;
    return QStringLiteral("%1:%2").arg(minutes / 60).arg(minutes % 60, 2, 10, QChar(u'0')) + end;
}

std::optional<int> ProgressText::percent(const HelperState &state)
{
    if (!state.syncing || state.indeterminate || state.syncBytesTotal == 0)
        return std::nullopt;
    const double part = static_cast<double>(std::min(state.syncBytes, state.syncBytesTotal)) /
                        static_cast<double>(state.syncBytesTotal);
    return static_cast<int>(part * 100);
}

QString ProgressText::amount(const HelperState &state)
{
    return QStringLiteral("%1% (%2 of %3)")
        .arg(percent(state).value_or(0))
        .arg(size(state.syncBytes), size(state.syncBytesTotal));
}

QString ProgressText::pace(const HelperState &state, std::optional<double> rate)
{
    if (!rate || *rate < 1)
        return {};
    const quint64 left = state.syncBytesTotal - std::min(state.syncBytes, state.syncBytesTotal);
    const auto seconds = std::chrono::seconds(std::llround(static_cast<double>(left) / *rate));
    return QStringLiteral("%1/s, %2 left")
        .arg(size(static_cast<quint64>(*rate)), duration(seconds));
}
