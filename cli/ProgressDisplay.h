#pragma once

#include "frontend/HelperState.h"
#include "frontend/RateMeter.h"

#include <QStringList>

#include <memory>
#include <optional>

/// Progress on a terminal's line.
namespace ProgressLine {

/// "[####    ] 45% (1.2 MB of 3.4 MB), 2 MB/s, 0:03 left" in at most so many columns: what doesn't
/// fit is left out from the end, the bar first. Empty where the counts say nothing.
QString bar(const HelperState &state, std::optional<double> rate, int columns);

/// The text, cut to so many columns with "…" in the place of the rest, without control characters.
QString fitted(const QString &text, int columns);

} // namespace ProgressLine

/// Shows the helper's state as it changes.
class ProgressDisplay
{
public:
    virtual ~ProgressDisplay() = default;
    virtual void show(const HelperState &state) = 0;

    /// Takes away what is not to stay, so that other lines can be written; the next show() draws it
    /// again.
    virtual void clear() {}

    /// Redrawn in place on a terminal, lines that stay elsewhere.
    static std::unique_ptr<ProgressDisplay> make();
};

/// Each new status text as a line, and the progress in steps of ten per cent; with the subtexts
/// also how far a movie's conversion is.
class LineDisplay : public ProgressDisplay
{
public:
    enum class SubTexts { Show, Hide };
    explicit LineDisplay(SubTexts subTexts)
        : m_subTexts(subTexts)
    {
    }

    void show(const HelperState &state) override;

    /// The lines that the state adds to what was shown before.
    QStringList lines(const HelperState &state);

private:
    const SubTexts m_subTexts;
    QString m_text;
    QString m_conversion;
    int m_step = 0; // last step shown, in tens of per cent
};

/// A status line with a progress bar below it, at the terminal's width.
class TerminalDisplay : public ProgressDisplay
{
public:
    void show(const HelperState &state) override;
    void clear() override;

private:
    RateMeter m_meter;
    bool m_drawn = false;
};
