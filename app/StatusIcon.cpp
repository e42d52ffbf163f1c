#include "app/StatusIcon.h"

#include "sync/CVSyncManager.h"

using namespace std::chrono_literals;

namespace {

constexpr auto frameTime = 75ms;
constexpr auto unseenTime = 1s;
constexpr quint32 lastFrame = 13;

const QString noPSPImage = QStringLiteral("InactiveNoPSPIcon");
const QString pspImage = QStringLiteral("InactiveIcon");
const QString activeImage = QStringLiteral("ActiveIcon");

} // namespace

StatusIcon::StatusIcon(StatusBar &statusBar, CVSyncManager &manager)
    : m_statusBar(statusBar)
    , m_manager(manager)
{
    m_syncAnimationTimer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_syncAnimationTimer, &QTimer::timeout, &m_syncAnimationTimer,
                     [this] { syncAnimationPing(); });
}

void StatusIcon::show(Menu &menu)
{
    if (m_statusItem)
        return;
    m_statusItem = m_statusBar.makeStatusItem();
    setImages(idleImage(), activeImage);
    m_statusItem->setToolTip(m_toolTip);
    m_statusItem->setMenu(&menu);
    m_statusItem->setEnabled(true);
}

void StatusIcon::remove()
{
    m_statusItem.reset();
}

void StatusIcon::disable()
{
    if (m_statusItem)
        m_statusItem->setEnabled(false);
}

void StatusIcon::setImage(const QString &name)
{
    if (m_statusItem)
        m_statusItem->setImage(name);
}

void StatusIcon::setImages(const QString &name, const QString &alternateName)
{
    setImage(name);
    if (m_statusItem)
        m_statusItem->setAlternateImage(alternateName);
}

QString StatusIcon::idleImage() const
{
    return m_manager.pspIsMounted() ? pspImage : noPSPImage;
}

void StatusIcon::setToolTip(const QString &text)
{
    m_toolTip = text;
    if (m_statusItem)
        m_statusItem->setToolTip(text);
}

void StatusIcon::pspDidMount()
{
    setImage(pspImage);
}

void StatusIcon::pspDidUnmount()
{
    setImage(noPSPImage);
}

void StatusIcon::startSyncAnimation()
{
    if (m_syncAnimationTimer.isActive())
        return;
    m_syncAnimationFrame = 0;
    m_syncAnimationTimer.start(frameTime);
}

void StatusIcon::syncAnimationPing()
{
    // Each frame is told on the bus: none that nobody sees.
    const bool isShown = m_statusItem && m_statusItem->isShown();
    const std::chrono::milliseconds time = isShown ? frameTime : unseenTime;
    if (m_syncAnimationTimer.intervalAsDuration() != time)
        m_syncAnimationTimer.setInterval(time);
    if (!isShown)
        return;
    if (m_syncAnimationFrame <= 1)
        m_syncAnimationDirection = 1;
    if (m_syncAnimationFrame >= lastFrame)
        m_syncAnimationDirection = -1;
    m_syncAnimationFrame += static_cast<quint32>(m_syncAnimationDirection);
    setImages(QStringLiteral("InactiveSyncingIcon%1").arg(m_syncAnimationFrame),
              QStringLiteral("ActiveSyncingIcon%1").arg(m_syncAnimationFrame));
}

void StatusIcon::stopSyncAnimation()
{
    if (!m_syncAnimationTimer.isActive())
        return;
    m_syncAnimationTimer.stop();
    setImages(idleImage(), activeImage);
}
