#include "frontend/RateMeter.h"

using namespace std::chrono_literals;

namespace {

constexpr auto rateSpan = 5s;
constexpr auto shortestSpan = 500ms;

} // namespace

void RateMeter::add(quint64 bytes, Time now)
{
    if (!m_samples.empty() && bytes < m_samples.back().bytes)
        m_samples.clear();
    // Until the first byte there is no copying to measure.
    if (bytes == 0)
        return;
    m_samples.push_back({bytes, now});
    while (m_samples.size() > 2 && now - m_samples[1].time >= rateSpan)
        m_samples.pop_front();
}

std::optional<double> RateMeter::rate() const
{
    if (m_samples.empty())
        return std::nullopt;
    const Time span = m_samples.back().time - m_samples.front().time;
    if (span < shortestSpan)
        return std::nullopt;
    const auto grown = static_cast<double>(m_samples.back().bytes - m_samples.front().bytes);
    return grown * 1000 / static_cast<double>(span.count());
}
