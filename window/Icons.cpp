#include "window/Icons.h"

#include "platform/core/MainThread.h"

#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <QPointer>
#include <QStyle>

#include <algorithm>

namespace {

constexpr int mostIcons = 500;
constexpr qsizetype mostAtOnce = 16;

/// Centred on the whole of the size, so that names begin in one line; null for what can't be read.
QImage imageFor(const QMIconTransformer &transformer, const QString &name, QSize pixels,
                qreal ratio)
{
    // Those of the resources are there in a row's size and in twice that.
    const bool isSharp = ratio > 1 && !name.contains(u'/');
    QImage image = transformer.transformedValue(isSharp ? name + QStringLiteral("@2x") : name);
    if (image.width() <= 1)
        return {};
    if (image.width() > pixels.width() || image.height() > pixels.height())
        image = image.scaled(pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QImage canvas(pixels, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    QPainter(&canvas).drawImage(
        QPoint(pixels.width() - image.width(), pixels.height() - image.height()) / 2, image);
    canvas.setDevicePixelRatio(ratio);
    return canvas;
}

/// Of an album's picture in its frame the frame's shape alone would stay.
bool isSymbol(const QString &name)
{
    return !name.contains(u'/') && !name.startsWith(u"iPhoto");
}

/// In a selected row a symbol has the colour of the text, and a picture stays as it is.
QIcon iconOf(const QImage &image, bool takesTextColour)
{
    if (image.isNull())
        return QApplication::style()->standardIcon(QStyle::SP_FileIcon);
    QIcon icon(QPixmap::fromImage(image));
    QImage selected = image;
    if (takesTextColour) {
        QPainter painter(&selected);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(QRect({}, selected.deviceIndependentSize().toSize()),
                         QApplication::palette().color(QPalette::HighlightedText));
    }
    icon.addPixmap(QPixmap::fromImage(selected), QIcon::Selected);
    return icon;
}

} // namespace

Icons::Icons(const QString &resourcePath, QSize size, QObject *parent)
    : QObject(parent)
    , m_transformer(resourcePath)
    , m_size(size)
    , m_icons(mostIcons)
{
}

QIcon Icons::blank() const
{
    QPixmap pixmap(m_size);
    pixmap.fill(Qt::transparent);
    return {pixmap};
}

QIcon Icons::icon(const QString &name)
{
    if (const QIcon *known = m_icons.object(name))
        return *known;
    if (!m_asked.contains(name)) {
        m_asked.insert(name);
        m_wanted.append(name);
        if (!m_isReading)
            QMetaObject::invokeMethod(this, &Icons::read, Qt::QueuedConnection);
        m_isReading = true;
    }
    return blank();
}

// The last ones first: these are in sight.
void Icons::read()
{
    const qsizetype count = std::min(m_wanted.size(), mostAtOnce);
    const QStringList names = m_wanted.last(count);
    m_wanted.resize(m_wanted.size() - count);
    m_isReading = !names.isEmpty();
    if (!m_isReading)
        return;
    const QPointer<Icons> self(this);
    const auto work = [self, names, transformer = m_transformer, pixels = m_size * m_ratio,
                       ratio = m_ratio] {
        std::vector<std::pair<QString, QImage>> images;
        for (const QString &name : names)
            images.emplace_back(name, imageFor(transformer, name, pixels, ratio));
        const auto hand = [self, images = std::move(images)] {
            if (self)
                self->adopt(images);
        };
        performOnMainThread(nullptr, hand, CallMode::DontWait);
    };
    m_isReading = Workers::start(work, Workers::AtQuit::Leave);
}

void Icons::adopt(const std::vector<std::pair<QString, QImage>> &images)
{
    for (const auto &[name, image] : images) {
        m_asked.remove(name);
        m_icons.insert(name, new QIcon(iconOf(image, isSymbol(name))));
        Q_EMIT ready(name);
    }
    read();
}
