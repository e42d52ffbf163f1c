#include "cli/ProgressDisplay.h"

#include "cli/Output.h"
#include "frontend/ProgressText.h"

#include <algorithm>

namespace {

constexpr int smallestBar = 10;
constexpr int largestBar = 40;

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

QString ProgressLine::bar(const HelperState &state, std::optional<double> rate, int columns)
{
    const std::optional<int> done = ProgressText::percent(state);
    if (!done)
        return {};
    const QString amount = ProgressText::amount(state);
    const QString pace = ProgressText::pace(state, rate);
    QString text = pace.isEmpty() ? amount : QStringLiteral("%1, %2").arg(amount, pace);
    if (Output::columns(text) > columns)
        text = amount;
    // Brackets and a blank take three columns.
    const int room = std::min(columns - Output::columns(text) - 3, largestBar);
    return fitted(room >= smallestBar ? drawnBar(*done, room) + text : text, columns);
}

QString ProgressLine::fitted(const QString &text, int columns)
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
    Output::raw(ProgressLine::fitted(headline(state), columns) + u'\n' +
                ProgressLine::bar(state, m_meter.rate(), columns));
    m_drawn = true;
}

void TerminalDisplay::clear()
{
    if (m_drawn)
        Output::raw(QStringLiteral("\r\x1b[K\x1b[A\r\x1b[K"));
    m_drawn = false;
}
