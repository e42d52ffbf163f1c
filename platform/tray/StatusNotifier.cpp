#include "platform/tray/own/StatusNotifier.h"

#include "platform/core/Log.h"
#include "platform/tray/Menu.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QSysInfo>
#include <QtEndian>

namespace {

const QString objectPath = QStringLiteral("/StatusNotifierItem");
const QString itemInterface = QStringLiteral("org.kde.StatusNotifierItem");

} // namespace

// These types and their operators are found by their names: no namespace can hold them.

/// "(iiay)": ARGB in network byte order.
struct StatusPixmap
{
    int width = 0;
    int height = 0;
    QByteArray pixels;
};

using StatusPixmaps = QList<StatusPixmap>;

/// "(sa(iiay)ss)"
struct StatusToolTip
{
    QString icon;
    StatusPixmaps pixmaps;
    QString title;
    QString text;
};

Q_DECLARE_METATYPE(StatusPixmap)
Q_DECLARE_METATYPE(StatusToolTip)

static QDBusArgument &operator<<(QDBusArgument &out, const StatusPixmap &pixmap)
{
    out.beginStructure();
    out << pixmap.width << pixmap.height << pixmap.pixels;
    out.endStructure();
    return out;
}

static const QDBusArgument &operator>>(const QDBusArgument &in, StatusPixmap &pixmap)
{
    in.beginStructure();
    in >> pixmap.width >> pixmap.height >> pixmap.pixels;
    in.endStructure();
    return in;
}

static QDBusArgument &operator<<(QDBusArgument &out, const StatusToolTip &toolTip)
{
    out.beginStructure();
    out << toolTip.icon << toolTip.pixmaps << toolTip.title << toolTip.text;
    out.endStructure();
    return out;
}

static const QDBusArgument &operator>>(const QDBusArgument &in, StatusToolTip &toolTip)
{
    in.beginStructure();
    in >> toolTip.icon >> toolTip.pixmaps >> toolTip.title >> toolTip.text;
    in.endStructure();
    return in;
}

namespace {

StatusPixmap pixmapOf(const QImage &image)
{
    StatusPixmap pixmap{image.width(), image.height(), {}};
    pixmap.pixels.reserve(image.sizeInBytes());
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const quint32 pixel = qToBigEndian<quint32>(line[x]);
            pixmap.pixels.append(reinterpret_cast<const char *>(&pixel), sizeof pixel);
        }
    }
    return pixmap;
}

} // namespace

/// The exported object. It offers no Activate: a tray then opens the menu at any click.
class StatusNotifier::Object : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category CONSTANT)
    Q_PROPERTY(QString Id READ id CONSTANT)
    Q_PROPERTY(QString Title READ title CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(int WindowId READ windowId CONSTANT)
    Q_PROPERTY(QString IconName READ noName CONSTANT)
    Q_PROPERTY(StatusPixmaps IconPixmap READ iconPixmap CONSTANT)
    Q_PROPERTY(QString OverlayIconName READ noName CONSTANT)
    Q_PROPERTY(StatusPixmaps OverlayIconPixmap READ noPixmap CONSTANT)
    Q_PROPERTY(QString AttentionIconName READ noName CONSTANT)
    Q_PROPERTY(StatusPixmaps AttentionIconPixmap READ noPixmap CONSTANT)
    Q_PROPERTY(QString AttentionMovieName READ noName CONSTANT)
    Q_PROPERTY(StatusToolTip ToolTip READ toolTip CONSTANT)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu CONSTANT)
    Q_PROPERTY(QDBusObjectPath Menu READ menuPath CONSTANT)
public:
    Object(StatusImages &images, QString menuPath);

    void setImage(const QString &name);
    void setToolTip(const QString &text);

    QString category() const { return QStringLiteral("Hardware"); }
    QString id() const { return QStringLiteral("caravel-helper"); }
    QString title() const { return QStringLiteral("Caravel"); }
    QString status() const { return QStringLiteral("Active"); }
    int windowId() const { return 0; }
    QString noName() const { return {}; }
    StatusPixmaps noPixmap() const { return {}; }
    StatusPixmaps iconPixmap() const;
    StatusToolTip toolTip() const { return {{}, {}, title(), m_toolTip}; }
    bool itemIsMenu() const { return true; }
    QDBusObjectPath menuPath() const { return QDBusObjectPath(m_menuPath); }

Q_SIGNALS:
    void NewIcon();
    void NewToolTip();

private:
    StatusImages &m_images;
    const QString m_menuPath;
    QString m_image;
    QString m_toolTip;
};

StatusNotifier::Object::Object(StatusImages &images, QString menuPath)
    : m_images(images)
    , m_menuPath(std::move(menuPath))
{
}

void StatusNotifier::Object::setImage(const QString &name)
{
    if (std::exchange(m_image, name) != name)
        Q_EMIT NewIcon();
}

void StatusNotifier::Object::setToolTip(const QString &text)
{
    if (std::exchange(m_toolTip, text) != text)
        Q_EMIT NewToolTip();
}

StatusPixmaps StatusNotifier::Object::iconPixmap() const
{
    StatusPixmaps pixmaps;
    for (const QImage &image : m_images.named(m_image))
        pixmaps.append(pixmapOf(image));
    return pixmaps;
}

StatusNotifier::StatusNotifier(StatusImages &images, Menu &menu)
    : m_menu(menu, QStringLiteral("/MenuBar"))
    , m_object(std::make_unique<Object>(images, m_menu.path()))
{
    qDBusRegisterMetaType<StatusPixmap>();
    qDBusRegisterMetaType<StatusPixmaps>();
    qDBusRegisterMetaType<StatusToolTip>();
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.registerObject(objectPath, m_object.get(),
                            QDBusConnection::ExportAllProperties |
                                QDBusConnection::ExportAllSignals))
        qCWarning(lcPlatform).noquote() << "Can't serve the status item at" << objectPath;
    // A name of its own tells the watcher when the item goes while the program stays.
    m_busName =
        QStringLiteral("%1-%2-1").arg(itemInterface).arg(QCoreApplication::applicationPid());
    bus.registerService(m_busName);
}

StatusNotifier::~StatusNotifier()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.unregisterService(m_busName);
    bus.unregisterObject(objectPath);
}

void StatusNotifier::setImage(const QString &name)
{
    m_object->setImage(name);
}

void StatusNotifier::setToolTip(const QString &text)
{
    m_object->setToolTip(text);
}

QString StatusNotifier::watcher()
{
    return QStringLiteral("org.kde.StatusNotifierWatcher");
}

void StatusNotifier::registerWithWatcher() const
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(watcher(), QStringLiteral("/StatusNotifierWatcher"),
                                       watcher(), QStringLiteral("RegisterStatusNotifierItem"));
    call.setArguments({m_busName});
    QDBusConnection::sessionBus().send(call);
}

#include "StatusNotifier.moc"
