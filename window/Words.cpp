#include "window/Words.h"

#include <QFontMetrics>
#include <QLabel>

QLabel *Words::label(const QString &text)
{
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

QFont Words::bold(QFont font)
{
    font.setBold(true);
    return font;
}

QSize Words::dialogSize(const QWidget &dialog)
{
    const QFontMetrics letters = dialog.fontMetrics();
    return {120 * letters.averageCharWidth(), 34 * letters.height()};
}
