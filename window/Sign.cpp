#include "window/Sign.h"

#include <QPainter>
#include <QWidget>

QPixmap Sign::picture(const QWidget &widget, double lines) const
{
    const int side = qRound(widget.fontMetrics().height() * lines);
    QPixmap picture(QSize(side, side) * widget.devicePixelRatioF());
    picture.setDevicePixelRatio(widget.devicePixelRatioF());
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(colour));
    painter.drawEllipse(0, 0, side, side);
    QFont font = widget.font();
    font.setBold(true);
    font.setPixelSize(side * 6 / 10);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRect(0, 0, side, side), Qt::AlignCenter, QChar(letter));
    return picture;
}
