#include "window/CapacityBar.h"

#include "platform/core/Localized.h"
#include "window/Kinds.h"

#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr QRgb missingColour = 0xffc62828;

QColor colourOf(const QString &kind, const QPalette &palette)
{
    const Kind *known = kindOf(kind);
    return known ? known->colour() : palette.color(QPalette::Disabled, QPalette::Text);
}

QString named(const QColor &colour, const QString &words)
{
    return QStringLiteral("<span style=\"color:%1\">\u25A0</span>\u00A0%2")
        .arg(colour.name(), words.toHtmlEscaped().replace(u' ', QChar::Nbsp));
}

} // namespace

class CapacityBar::Bar : public QWidget
{
public:
    explicit Bar(CapacityBar &owner)
        : QWidget(&owner)
        , m_owner(owner)
    {
        setFixedHeight(fontMetrics().height() + 4);
    }

protected:
    void paintEvent(QPaintEvent *) override;

private:
    CapacityBar &m_owner;
};

// The parts in their order from where the text begins; what is too much fills the end.
void CapacityBar::Bar::paintEvent(QPaintEvent *)
{
    const Capacity &capacity = m_owner.m_capacity;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    QPainterPath outline;
    outline.addRoundedRect(frame, 5, 5);
    painter.fillPath(outline, palette().color(QPalette::Base));
    if (capacity.total > 0) {
        painter.setClipPath(outline);
        if (layoutDirection() == Qt::RightToLeft) {
            painter.translate(width(), 0);
            painter.scale(-1, 1);
        }
        const double scale = frame.width() / static_cast<double>(capacity.total + capacity.missing);
        double from = frame.left();
        const auto fill = [&](quint64 bytes, const QBrush &brush) {
            const double length = static_cast<double>(bytes) * scale;
            painter.fillRect(QRectF(from, 0, length, height()), brush);
            from += length;
        };
        for (const Capacity::Part &part : capacity.parts)
            fill(part.bytes, colourOf(part.kind, palette()));
        if (!capacity.fits) {
            const double limit = frame.right() - static_cast<double>(capacity.missing) * scale;
            const QRectF beyond(limit, 0, frame.right() - limit, height());
            painter.fillRect(beyond, QColor(missingColour));
            painter.fillRect(beyond, QBrush(Qt::white, Qt::BDiagPattern));
        }
        painter.resetTransform();
        painter.setClipping(false);
    }
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawPath(outline);
}

CapacityBar::CapacityBar(QWidget *parent)
    : QWidget(parent)
    , m_bar(new Bar(*this))
    , m_names(new QLabel)
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addWidget(m_bar);
    m_names->setTextFormat(Qt::RichText);
    m_names->setWordWrap(true);
    column->addWidget(m_names);
    m_bar->setAccessibleName(localized("Capacity of the Memory Stick after the sync"));
    setCapacity({});
}

void CapacityBar::setCapacity(const Capacity &capacity)
{
    m_capacity = capacity;
    setVisible(capacity.total > 0);
    const QString words = capacity.inWords();
    m_bar->setAccessibleDescription(words);
    m_bar->setToolTip(words);
    nameParts();
    m_bar->update();
}

void CapacityBar::nameParts()
{
    QStringList names;
    for (const Capacity::Part &part : std::as_const(m_capacity.parts))
        names.append(named(colourOf(part.kind, palette()), Capacity::partInWords(part)));
    Capacity rest = m_capacity;
    rest.parts.clear();
    const QString words = rest.inWords();
    if (m_capacity.fits)
        names.append(words.toHtmlEscaped().replace(u' ', QChar::Nbsp));
    else
        names.append(named(QColor(missingColour), words));
    m_names->setText(names.join(QStringLiteral("&nbsp;&nbsp;&nbsp; ")));
    m_names->setAccessibleName(m_capacity.inWords());
}
