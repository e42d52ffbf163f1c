#include "FakeTray.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

namespace {

const QString watcherName = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString itemPath = QStringLiteral("/StatusNotifierItem");
const QString itemInterface = QStringLiteral("org.kde.StatusNotifierItem");
const QString menuInterface = QStringLiteral("com.canonical.dbusmenu");

QVariantList call(const QString &service, const QString &path, const QString &interfaceName,
                  const QString &method, const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, interfaceName, method);
    message.setArguments(arguments);
    return QDBusConnection::sessionBus().call(message).arguments();
}

FakeTray::MenuItem readItem(const QDBusArgument &layout)
{
    int id = 0;
    QVariantMap properties;
    layout.beginStructure();
    layout >> id >> properties;
    layout.endStructure();
    return {properties.value(QStringLiteral("label")).toString(),
            properties.value(QStringLiteral("enabled"), true).toBool()};
}

QImage toImage(const QDBusArgument &pixmaps, int wantedWidth)
{
    QImage image;
    pixmaps.beginArray();
    while (!pixmaps.atEnd()) {
        int width = 0;
        int height = 0;
        QByteArray pixels;
        pixmaps.beginStructure();
        pixmaps >> width >> height >> pixels;
        pixmaps.endStructure();
        if (width != wantedWidth || pixels.size() != qsizetype(4) * width * height)
            continue;
        image = QImage(width, height, QImage::Format_ARGB32);
        const auto *bytes = reinterpret_cast<const uchar *>(pixels.constData());
        for (int i = 0; i < width * height; ++i)
            image.setPixel(
                i % width, i / width,
                qRgba(bytes[4 * i + 1], bytes[4 * i + 2], bytes[4 * i + 3], bytes[4 * i]));
    }
    pixmaps.endArray();
    return image;
}

} // namespace

FakeTray::FakeTray()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), this,
                       QDBusConnection::ExportAllSlots);
    bus.registerService(watcherName);
}

FakeTray::~FakeTray()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.unregisterService(watcherName);
    bus.unregisterObject(QStringLiteral("/StatusNotifierWatcher"));
}

void FakeTray::RegisterStatusNotifierItem(const QString &service)
{
    m_item = service;
    QDBusConnection::sessionBus().connect(m_item, itemPath, itemInterface,
                                          QStringLiteral("NewIcon"), this, SLOT(countNewImage()));
}

bool FakeTray::hasItem() const
{
    return !m_item.isEmpty() &&
           QDBusConnection::sessionBus().interface()->isServiceRegistered(m_item);
}

QVariant FakeTray::property(const QString &name) const
{
    const QVariantList answer =
        call(m_item, itemPath, QStringLiteral("org.freedesktop.DBus.Properties"),
             QStringLiteral("Get"), {itemInterface, name});
    return answer.isEmpty() ? QVariant() : answer.first().value<QDBusVariant>().variant();
}

QImage FakeTray::image() const
{
    return toImage(property(QStringLiteral("IconPixmap")).value<QDBusArgument>(), 22);
}

QList<FakeTray::MenuItem> FakeTray::menu() const
{
    const QString path = property(QStringLiteral("Menu")).value<QDBusObjectPath>().path();
    const QVariantList answer =
        call(m_item, path, menuInterface, QStringLiteral("GetLayout"), {0, -1, QStringList()});
    QList<MenuItem> items;
    if (answer.size() != 2)
        return items;
    const auto layout = answer[1].value<QDBusArgument>();
    int id = 0;
    QVariantMap properties;
    QVariantList children;
    layout.beginStructure();
    layout >> id >> properties >> children;
    layout.endStructure();
    for (const QVariant &child : children)
        items.append(readItem(child.value<QDBusArgument>()));
    return items;
}

QString FakeTray::menuItem(int index) const
{
    const MenuItem item = menu().value(index);
    return item.enabled ? item.label : u'(' + item.label + u')';
}

void FakeTray::sendMenuEvent(int id, const QString &event) const
{
    const QString path = property(QStringLiteral("Menu")).value<QDBusObjectPath>().path();
    call(m_item, path, menuInterface, QStringLiteral("Event"),
         {id, event, QVariant::fromValue(QDBusVariant(0)), 0U});
}
