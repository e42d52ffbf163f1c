#include "platform/tray/Menu.h"
#include "platform/tray/StatusItem.h"
#include "platform/tray/own/StatusNotifier.h"
#include "platform/tray/own/X11Tray.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusServiceWatcher>

namespace {

/// Shown through the bus while a watcher is there, else in the X11 tray. The toolkit's own item
/// settles for one of the two when the first is made, and never sees a bus tray that comes later.
class DesktopStatusItem : public StatusItem
{
public:
    explicit DesktopStatusItem(const QString &imageFolder);
    ~DesktopStatusItem() override { setEnabled(false); }

    void setImage(const QString &name) override;
    void setToolTip(const QString &text) override;
    void setAlternateImage(const QString &name) override;
    void setMenu(Menu *menu) override;
    void setEnabled(bool enabled) override;
    bool isShown() const override { return m_notifier && (m_isWatched || m_x11Tray); }

private:
    void closeMenu();
    void watcherCame();
    void watcherWent();
    void showImage();
    void showToolTip();

    StatusImages m_images;
    QString m_image;
    QString m_alternateImage;
    QString m_toolTip;
    Menu *m_menu = nullptr;
    bool m_isWatched = false;
    QDBusServiceWatcher m_watcher;
    std::unique_ptr<StatusNotifier> m_notifier; // while enabled
    std::unique_ptr<X11Tray> m_x11Tray;         // while enabled and there is no watcher
};

DesktopStatusItem::DesktopStatusItem(const QString &imageFolder)
    : m_images(imageFolder)
    , m_watcher(StatusNotifier::watcher(), QDBusConnection::sessionBus(),
                QDBusServiceWatcher::WatchForOwnerChange)
{
    // One watcher may pass the name straight on to the next.
    QObject::connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, &m_watcher,
                     [this](const QString &, const QString &, const QString &newOwner) {
                         closeMenu();
                         if (newOwner.isEmpty())
                             watcherWent();
                         else
                             watcherCame();
                     });
}

void DesktopStatusItem::setImage(const QString &name)
{
    m_image = name;
    showImage();
}

void DesktopStatusItem::setAlternateImage(const QString &name)
{
    m_alternateImage = name;
    showImage();
}

void DesktopStatusItem::setToolTip(const QString &text)
{
    m_toolTip = text;
    showToolTip();
}

void DesktopStatusItem::setMenu(Menu *menu)
{
    m_menu = menu;
    QObject::connect(m_menu, &Menu::openChanged, &m_watcher, [this] { showImage(); });
}

// Whoever had it open is no longer there to say that it is closed.
void DesktopStatusItem::closeMenu()
{
    if (m_menu)
        m_menu->setOpen(false);
}

void DesktopStatusItem::setEnabled(bool enabled)
{
    closeMenu();
    m_notifier.reset();
    m_x11Tray.reset();
    if (!enabled)
        return;
    m_notifier = std::make_unique<StatusNotifier>(m_images, *m_menu);
    const QDBusConnectionInterface *bus = QDBusConnection::sessionBus().interface();
    if (bus && bus->isServiceRegistered(StatusNotifier::watcher()))
        watcherCame();
    else
        watcherWent();
    showImage();
    showToolTip();
}

void DesktopStatusItem::watcherCame()
{
    m_isWatched = true;
    if (!m_notifier)
        return;
    m_x11Tray.reset();
    m_notifier->registerWithWatcher();
}

void DesktopStatusItem::watcherWent()
{
    m_isWatched = false;
    if (!m_notifier)
        return;
    if (X11Tray::isPossible() && !m_x11Tray)
        m_x11Tray = std::make_unique<X11Tray>(m_images, *m_menu);
    showImage();
    showToolTip();
}

void DesktopStatusItem::showImage()
{
    const QString &shown = m_menu && m_menu->isOpen() ? m_alternateImage : m_image;
    if (m_notifier)
        m_notifier->setImage(shown);
    if (m_x11Tray)
        m_x11Tray->setImage(shown);
}

void DesktopStatusItem::showToolTip()
{
    if (m_notifier)
        m_notifier->setToolTip(m_toolTip);
    if (m_x11Tray)
        m_x11Tray->setToolTip(m_toolTip);
}

class DesktopStatusBar : public StatusBar
{
public:
    explicit DesktopStatusBar(QString imageFolder)
        : m_imageFolder(std::move(imageFolder))
    {
    }

    std::unique_ptr<StatusItem> makeStatusItem() override
    {
        return std::make_unique<DesktopStatusItem>(m_imageFolder);
    }

private:
    const QString m_imageFolder;
};

} // namespace

std::unique_ptr<StatusBar> makeStatusBar(const QString &imageFolder)
{
    return std::make_unique<DesktopStatusBar>(imageFolder);
}
