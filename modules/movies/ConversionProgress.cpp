#include "modules/movies/ConversionProgress.h"

#include "platform/core/Localized.h"

#include <QList>

#include <algorithm>
#include <limits>

namespace {

// The duration stands at the output's beginning; a converter that talks on and on fills no memory.
constexpr qsizetype longestBuffer = 1 << 20;
constexpr qsizetype longestLine = 4096;

// Leading blanks are passed over and whatever follows the digits; 0 for what is no number.
qint64 leadingInteger(QByteArrayView text)
{
    text = text.trimmed();
    const bool negative = text.startsWith('-');
    qint64 value = 0;
    for (const char c : text.sliced(negative || text.startsWith('+') ? 1 : 0)) {
        if (c < '0' || c > '9' || value > std::numeric_limits<qint64>::max() / 10 - 9)
            break;
        value = value * 10 + (c - '0');
    }
    return negative ? -value : value;
}

// Of "HH:MM:SS".
double clockSeconds(const QByteArray &clock)
{
    double seconds = 0;
    const QList<QByteArray> parts = clock.split(':');
    for (qsizetype i = 0; i < std::min<qsizetype>(parts.size(), 3); ++i)
        seconds = seconds * 60 + static_cast<double>(leadingInteger(parts[i]));
    return seconds;
}

// "MOVINFO: a, b, c, d :MOVINFO": a units of which d make a second.
double movieInfoSeconds(const QByteArray &buffer)
{
    const QByteArrayView start = "MOVINFO: ";
    const qsizetype from = buffer.indexOf(start);
    const qsizetype to = buffer.indexOf(" :MOVINFO");
    if (from < 0 || to <= from + start.size())
        return 0;
    const QByteArray text = buffer.mid(from + start.size(), to - from - start.size());
    QList<QByteArray> fields;
    for (const QByteArray &field : text.split(','))
        fields.append(field);
    if (fields.size() < 4)
        return 0;
    const qint64 units = leadingInteger(fields[3]);
    return units == 0 ? 0 : static_cast<double>(leadingInteger(fields[0]) / units);
}

double durationOf(const QByteArray &buffer)
{
    constexpr qsizetype clockLength = 8;
    constexpr qsizetype clockDistance = 10; // "HH:MM:SS.t" stands before the mark
    const qsizetype mark = buffer.indexOf(", start: ");
    return mark >= clockDistance ? clockSeconds(buffer.mid(mark - clockDistance, clockLength))
                                 : movieInfoSeconds(buffer);
}

} // namespace

QString ConversionProgress::initialText()
{
    return localized("Conversion in progress...");
}

bool ConversionProgress::take(const QByteArray &chunk, bool isRunning)
{
    readLines(chunk);
    const QByteArrayView start = "frame=";
    if (!isRunning || !chunk.startsWith(start)) {
        append(chunk);
        return false;
    }
    if (m_totalFrames == 0)
        learnDuration();
    const qsizetype end = chunk.indexOf(" q=");
    const qint64 frame =
        end < 0 ? 0
                : leadingInteger(QByteArrayView(chunk)
                                     .sliced(start.size())
                                     .first(std::max<qsizetype>(0, end - start.size())));
    const quint32 percent =
        percentAt(static_cast<quint32>(std::clamp<qint64>(frame, 0, 0xffffffff)));
    m_text = percent == 0 || percent > 100
                 ? initialText()
                 : localized("Conversion in progress, %i%% completed...")
                       .replace(QStringLiteral("%i"), QString::number(percent))
                       .replace(QStringLiteral("%%"), QStringLiteral("%"));
    return true;
}

void ConversionProgress::readLines(const QByteArray &chunk)
{
    const QByteArrayView reason = "convert.sh: ";
    const QByteArrayView warning = "Warning: ";
    for (const char c : chunk) {
        if (c != '\n' && c != '\r') {
            if (m_line.size() < longestLine)
                m_line += c;
            continue;
        }
        if (m_line.startsWith(reason))
            m_reason = m_line.mid(reason.size());
        if (m_line.startsWith(warning))
            m_warning = m_line.mid(warning.size());
        m_line.clear();
    }
}

void ConversionProgress::append(const QByteArray &chunk)
{
    const qsizetype room = longestBuffer - m_movieLogBuffer.size();
    m_movieLogBuffer += chunk.first(std::min(chunk.size(), room)).replace('\n', ' ');
}

void ConversionProgress::learnDuration()
{
    if (!m_movieLogBuffer.contains("Duration:") || !m_movieLogBuffer.contains("Output"))
        return;
    const double rate = m_videoQuality == 0 ? 14.97 : 29.97;
    const double frames = durationOf(m_movieLogBuffer) * rate;
    m_totalFrames = static_cast<quint32>(std::clamp(frames, 0.0, 4294967295.0));
}

quint32 ConversionProgress::percentAt(quint32 frame) const
{
    if (m_totalFrames == 0)
        return 0;
    const float percent = static_cast<float>(frame) / static_cast<float>(m_totalFrames) * 100;
    return percent > 1000 ? 1000 : static_cast<quint32>(percent);
}
