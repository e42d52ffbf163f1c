#pragma once

#include <QChar>
#include <QPixmap>

class QWidget;

/// What a message or a question is, as a letter on a round ground, so that it isn't told by colour
/// alone. Main thread.
struct Sign
{
    char16_t letter;
    QRgb colour;

    /// Made for the widget's letters and screen, as high as `lines` lines of its text.
    QPixmap picture(const QWidget &widget, double lines) const;
};

namespace Signs {

inline constexpr Sign information{u'i', 0xff2f72cc};
inline constexpr Sign warning{u'!', 0xffb26a00};
inline constexpr Sign critical{u'\u00D7', 0xffc62828};
inline constexpr Sign question{u'?', 0xff2f72cc};

} // namespace Signs
