#include "window/Words.h"

#include "platform/core/Localized.h"

#include <QDialogButtonBox>
#include <QFontMetrics>
#include <QLabel>
#include <QPushButton>

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

QFont Words::heading(QFont font)
{
    font.setPointSizeF(font.pointSizeF() * 1.25);
    return bold(font);
}

// The toolkit's own texts are not installed everywhere.
QDialogButtonBox *Words::closeButtons()
{
    auto *buttons = new QDialogButtonBox;
    buttons->addButton(localized("Close"), QDialogButtonBox::RejectRole)
        ->setAccessibleDescription(localized("Closes this window."));
    return buttons;
}

QSize Words::dialogSize(const QWidget &dialog)
{
    const QFontMetrics letters = dialog.fontMetrics();
    return {120 * letters.averageCharWidth(), 34 * letters.height()};
}
