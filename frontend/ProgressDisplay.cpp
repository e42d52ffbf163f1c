#include "frontend/ProgressDisplay.h"

#include "frontend/Output.h"
#include "util/FileManagerTools.h"

#include <algorithm>
#include <cmath>

using namespace std::chrono_literals;

namespace {

constexpr auto rateSpan = 5s;
constexpr auto shortestSpan = 500ms;
constexpr int smallestBar = 10;
constexpr int largestBar = 40;

QString size(quint64 bytes)
{
    return FileManagerTools::sizeDescriptionForByteCount(bytes);
}

QString pace(const HelperState &state, std::optional<double> rate)
{
    if (!rate || *rate < 1)
        return {};
    const quint64 left = state.syncBytesTotal - std::min(state.syncBytes, state.syncBytesTotal);
    const auto seconds = std::chrono::seconds(std::llround(static_cast<double>(left) / *rate));
    return QStringLiteral(", %1/s, %2 left")
        .arg(size(static_cast<quint64>(*rate)), ProgressText::duration(seconds));
}

QString drawnBar(int percent, int width)
{
    const int filled = width * percent / 100;
    return u'[' + QString(filled, u'#') + QString(width - filled, u' ') + QStringLiteral("] ");
}

QString headline(const HelperState &state)
{
    return state.statusSubText.isEmpty()
               ? state.statusText
               : QStringLiteral("%1 - %2").arg(state.statusText, state.statusSubText);
}

} // namespace

void RateMeter::add(quint64 bytes, Time now)
{
    if (!m_samples.empty() && bytes < m_samples.back().bytes)
        m_samples.clear();
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

QString ProgressText::bar(const HelperState &state, std::optional<double> rate, int columns)
{
    const std::optional<int> done = percent(state);
    if (!done)
        return {};
    QString text = amount(state) + pace(state, rate);
    if (Output::columns(text) > columns)
        text = amount(state);
    // Brackets and a blank take three columns.
    const int room = std::min(columns - Output::columns(text) - 3, largestBar);
    return fitted(room >= smallestBar ? drawnBar(*done, room) + text : text, columns);
}

QString ProgressText::fitted(const QString &text, int columns)
{
    QString line = Output::printable(text);
    if (Output::columns(line) <= columns)
        return line;
    while (!line.isEmpty() && Output::columns(line) > columns - 1) {
        const bool isPair = line.size() > 1 && line.back().isLowSurrogate();
        line.chop(isPair ? 2 : 1);
    }
    return columns > 0 ? line + QChar(0x2026) : QString();
}

std::unique_ptr<ProgressDisplay> ProgressDisplay::make()
{
    if (Output::isTerminal())
        return std::make_unique<TerminalDisplay>();
    return std::make_unique<LineDisplay>(LineDisplay::SubTexts::Hide);
}

void LineDisplay::show(const HelperState &state)
{
    for (const QString &line : lines(state))
        Output::print(line);
}

QStringList LineDisplay::lines(const HelperState &state)
{
    QStringList added;
    const QString text = m_subTexts == SubTexts::Show ? headline(state) : state.statusText;
    if (text != m_text)
        added.append(Output::printable(text));
    m_text = text;
    const QString conversion = state.converting ? state.percentConverted : QString();
    if (m_subTexts == SubTexts::Show && !conversion.isEmpty() && conversion != m_conversion)
        added.append(Output::printable(conversion));
    m_conversion = conversion;
    const std::optional<int> done = ProgressText::percent(state);
    const int step = done.value_or(0) / 10;
    if (step > m_step)
        added.append(ProgressText::amount(state));
    // Phases without a count lie between those with one; only the end of the sync begins anew.
    if (done || !state.syncing)
        m_step = step;
    return added;
}

void TerminalDisplay::show(const HelperState &state)
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    m_meter.add(state.syncBytes, std::chrono::duration_cast<RateMeter::Time>(now));
    // The last column stays free: some terminals wrap when it is filled.
    const int columns = Output::terminalWidth() - 1;
    clear();
    Output::raw(ProgressText::fitted(headline(state), columns) + u'\n' +
                ProgressText::bar(state, m_meter.rate(), columns));
    m_drawn = true;
}

void TerminalDisplay::clear()
{
    if (m_drawn)
        Output::raw(QStringLiteral("\r\x1b[K\x1b[A\r\x1b[K"));
    m_drawn = false;
}
