#include "platform/tray/own/X11Tray.h"

#include "platform/tray/Menu.h"

#include <QApplication>
#include <QMenu>
#include <QSystemTrayIcon>

class X11Tray::Private
{
public:
    Private(StatusImages &statusImages, Menu &shown)
        : images(statusImages)
        , source(shown)
    {
        for (int index = 0; index < source.count(); ++index) {
            QAction *action = menu.addAction(QString());
            QObject::connect(action, &QAction::triggered, &menu,
                             [this, index] { source.choose(index); });
            update(index);
        }
        QObject::connect(&source, &Menu::itemChanged, &menu, [this](int index) { update(index); });
        QObject::connect(&menu, &QMenu::aboutToShow, &menu, [this] { source.setOpen(true); });
        QObject::connect(&menu, &QMenu::aboutToHide, &menu, [this] { source.setOpen(false); });
        QObject::connect(&icon, &QSystemTrayIcon::activated, &menu,
                         [this](QSystemTrayIcon::ActivationReason reason) {
                             if (reason == QSystemTrayIcon::Trigger)
                                 menu.popup(icon.geometry().bottomLeft());
                         });
        icon.setContextMenu(&menu);
    }

    void update(int index)
    {
        QAction *action = menu.actions().at(index);
        // A single ampersand would mark the key to press.
        action->setText(
            QString(source.itemAtIndex(index).title).replace(u'&', QStringLiteral("&&")));
        action->setEnabled(source.itemAtIndex(index).enabled);
    }

    StatusImages &images;
    Menu &source;
    QMenu menu;
    QSystemTrayIcon icon;
};

X11Tray::X11Tray(StatusImages &images, Menu &menu)
    : d(std::make_unique<Private>(images, menu))
{
}

X11Tray::~X11Tray() = default;

bool X11Tray::isPossible()
{
    return qobject_cast<QApplication *>(QCoreApplication::instance()) &&
           QGuiApplication::platformName() == u"xcb";
}

void X11Tray::setImage(const QString &name)
{
    QIcon icon;
    for (const QImage &image : d->images.named(name))
        icon.addPixmap(QPixmap::fromImage(image));
    d->icon.setIcon(icon);
    d->icon.setVisible(!icon.isNull());
}

void X11Tray::setToolTip(const QString &text)
{
    d->icon.setToolTip(QStringLiteral("Caravel: ") + text);
}
