#include "window/WindowStyle.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>

void WindowStyle::install()
{
    if (QApplication::style()->name() == u"fusion")
        QApplication::setStyle(new WindowStyle);
}

QSize WindowStyle::sizeFromContents(ContentsType type, const QStyleOption *option,
                                    const QSize &size, const QWidget *widget) const
{
    const QSize room(type == CT_PushButton ? 12 : 0, type == CT_PushButton ? 2 : 0);
    return QProxyStyle::sizeFromContents(type, option, size, widget) + room;
}

void WindowStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                QPainter *painter, const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isRound = element == PE_IndicatorRadioButton;
    const bool isBox = element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck;
    constexpr int middle = 128;
    if (!(isBox || isRound) || option->palette.color(QPalette::Base).lightness() > middle)
        return;
    QColor edge = option->palette.color(QPalette::Text);
    edge.setAlphaF(0.5F);
    painter->save();
    painter->setPen(edge);
    painter->setBrush(Qt::NoBrush);
    if (isRound) {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->drawEllipse(QRectF(option->rect).adjusted(1, 1, -1, -1));
    } else {
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    }
    painter->restore();
}
