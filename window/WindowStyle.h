#pragma once

#include <QProxyStyle>

/// The toolkit's own style, where the desktop brings none, with room around the texts of buttons
/// and with check boxes that are seen on dark grounds. Main thread.
class WindowStyle : public QProxyStyle
{
    Q_OBJECT
public:
    /// Leaves a desktop's style as it is.
    static void install();

    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
};
