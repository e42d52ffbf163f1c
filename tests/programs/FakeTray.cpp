#include "FakeTray.h"

#include "platform/bus/RemoteObject.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QtEndian>

namespace {

const QString watcherName = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");

/// "Sync Now", or "(Sync Now)" where it is disabled.
QString label(const QDBusArgument &item)
{
    int id = 0;
    QVariantMap properties;
    item.beginStructure();
    item >> id >> properties;
    item.endStructure();
    const QString text = properties.value(QStringLiteral("label")).toString();
    return properties.value(QStringLiteral("enabled"), true).toBool() ? text : u'(' + text + u')';
}

} // namespace

FakeTray::FakeTray()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.registerObject(watcherPath, this, QDBusConnection::ExportAllSlots);
    bus.registerService(watcherName);
}

FakeTray::~FakeTray()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.unregisterService(watcherName);
    bus.unregisterObject(watcherPath);
}

bool FakeTray::hasItem() const
{
    return !m_item.isEmpty() &&
           QDBusConnection::sessionBus().interface()->isServiceRegistered(m_item);
}

QVariant FakeTray::property(const QString &name) const
{
    RemoteObject item(m_item, QStringLiteral("/StatusNotifierItem"),
                      QStringLiteral("org.freedesktop.DBus.Properties"));
    const QVariantList arguments{QStringLiteral("org.kde.StatusNotifierItem"), name};
    return item.call(QStringLiteral("Get"), arguments, std::chrono::seconds(30))
        .value.value_or(QVariant());
}

QImage FakeTray::image() const
{
    constexpr int size = 22;
    for (const QVariant &pixmap : property(QStringLiteral("IconPixmap")).toList()) {
        const QVariantList parts = pixmap.toList(); // width, height, ARGB with the alpha first
        QByteArray pixels = parts.value(2).toByteArray();
        if (parts[0] != size || pixels.size() != qsizetype(4) * size * size)
            continue;
        qFromBigEndian<quint32>(pixels.constData(), pixels.size() / 4, pixels.data());
        return QImage(reinterpret_cast<const uchar *>(pixels.constData()), size, size,
                      QImage::Format_ARGB32)
            .copy();
    }
    return {};
}

QString FakeTray::toolTip() const
{
    return property(QStringLiteral("ToolTip")).toList().value(3).toString();
}

QVariantList FakeTray::callMenu(const QString &method, const QVariantList &arguments) const
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(m_item, property(QStringLiteral("Menu")).toString(),
                                       QStringLiteral("com.canonical.dbusmenu"), method);
    message.setArguments(arguments);
    return QDBusConnection::sessionBus().call(message).arguments();
}

QStringList FakeTray::menu() const
{
    const QVariantList answer = callMenu(QStringLiteral("GetLayout"), {0, -1, QStringList()});
    if (answer.size() != 2)
        return {};
    const auto layout = answer[1].value<QDBusArgument>();
    int id = 0;
    QVariantMap properties;
    QVariantList children;
    layout.beginStructure();
    layout >> id >> properties >> children;
    layout.endStructure();
    QStringList items;
    for (const QVariant &child : children)
        items.append(label(child.value<QDBusArgument>()));
    return items;
}

void FakeTray::sendMenuEvent(int id, const QString &event) const
{
    callMenu(QStringLiteral("Event"), {id, event, QVariant::fromValue(QDBusVariant(0)), 0U});
}
