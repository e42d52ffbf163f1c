#include "platform/tray/own/BusMenu.h"

#include "platform/core/Log.h"
#include "platform/tray/Menu.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QVariantMap>

// These types and their operators are found by their names: no namespace can hold them.

/// "(ia{sv})"
struct BusMenuItem
{
    int id = 0;
    QVariantMap properties;
};

/// "(ias)"
struct BusMenuItemNames
{
    int id = 0;
    QStringList names;
};

/// "(ia{sv}av)"
struct BusMenuLayout
{
    int id = 0;
    QVariantMap properties;
    QList<BusMenuLayout> children;
};

/// "(isvu)"
struct BusMenuEvent
{
    int id = 0;
    QString name;
    QDBusVariant data;
    uint time = 0;
};

Q_DECLARE_METATYPE(BusMenuItem)
Q_DECLARE_METATYPE(BusMenuItemNames)
Q_DECLARE_METATYPE(BusMenuLayout)
Q_DECLARE_METATYPE(BusMenuEvent)

static QDBusArgument &operator<<(QDBusArgument &out, const BusMenuItem &item)
{
    out.beginStructure();
    out << item.id << item.properties;
    out.endStructure();
    return out;
}

static const QDBusArgument &operator>>(const QDBusArgument &in, BusMenuItem &item)
{
    in.beginStructure();
    in >> item.id >> item.properties;
    in.endStructure();
    return in;
}

static QDBusArgument &operator<<(QDBusArgument &out, const BusMenuItemNames &item)
{
    out.beginStructure();
    out << item.id << item.names;
    out.endStructure();
    return out;
}

static const QDBusArgument &operator>>(const QDBusArgument &in, BusMenuItemNames &item)
{
    in.beginStructure();
    in >> item.id >> item.names;
    in.endStructure();
    return in;
}

static QDBusArgument &operator<<(QDBusArgument &out, const BusMenuLayout &layout)
{
    out.beginStructure();
    out << layout.id << layout.properties;
    out.beginArray(QMetaType::fromType<QDBusVariant>());
    for (const BusMenuLayout &child : layout.children)
        out << QDBusVariant(QVariant::fromValue(child));
    out.endArray();
    out.endStructure();
    return out;
}

// Layouts are only sent; the bus's types want both directions.
static const QDBusArgument &operator>>(const QDBusArgument &in, BusMenuLayout &)
{
    return in;
}

static QDBusArgument &operator<<(QDBusArgument &out, const BusMenuEvent &event)
{
    out.beginStructure();
    out << event.id << event.name << event.data << event.time;
    out.endStructure();
    return out;
}

static const QDBusArgument &operator>>(const QDBusArgument &in, BusMenuEvent &event)
{
    in.beginStructure();
    in >> event.id >> event.name >> event.data >> event.time;
    in.endStructure();
    return in;
}

namespace {

void registerTypes()
{
    qDBusRegisterMetaType<BusMenuItem>();
    qDBusRegisterMetaType<QList<BusMenuItem>>();
    qDBusRegisterMetaType<BusMenuItemNames>();
    qDBusRegisterMetaType<QList<BusMenuItemNames>>();
    qDBusRegisterMetaType<BusMenuLayout>();
    qDBusRegisterMetaType<BusMenuEvent>();
    qDBusRegisterMetaType<QList<BusMenuEvent>>();
    qDBusRegisterMetaType<QList<int>>();
}

constexpr int rootId = 0;

int idOf(int index)
{
    return index + 1;
}

int indexOf(int id)
{
    return id - 1;
}

} // namespace

/// The exported object: its slots, properties and signals are the interface's.
class BusMenu::Object : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version CONSTANT)
    Q_PROPERTY(QString TextDirection READ textDirection CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath CONSTANT)
public:
    explicit Object(Menu &menu);

    uint version() const { return 3; }
    QString textDirection() const;
    QString status() const { return QStringLiteral("normal"); }
    QStringList iconThemePath() const { return {}; }

public Q_SLOTS:
    uint GetLayout(int parentId, int recursionDepth, const QStringList &propertyNames,
                   BusMenuLayout &layout);
    QList<BusMenuItem> GetGroupProperties(const QList<int> &ids, const QStringList &propertyNames);
    QDBusVariant GetProperty(int id, const QString &name);
    void Event(int id, const QString &eventId, const QDBusVariant &data, uint timestamp);
    QList<int> EventGroup(const QList<BusMenuEvent> &events);
    bool AboutToShow(int id);
    QList<int> AboutToShowGroup(const QList<int> &ids, QList<int> &idErrors);

Q_SIGNALS:
    void ItemsPropertiesUpdated(const QList<BusMenuItem> &updatedProps,
                                const QList<BusMenuItemNames> &removedProps);
    void LayoutUpdated(uint revision, int parent);
    void ItemActivationRequested(int id, uint timestamp);

private:
    bool exists(int id) const { return id >= rootId && id <= m_menu.count(); }
    QVariantMap properties(int id, const QStringList &names = {}) const;
    void itemChanged(int index);

    Menu &m_menu;
    bool m_changed = false; // since this was last set to false
};

BusMenu::Object::Object(Menu &menu)
    : m_menu(menu)
{
    connect(&m_menu, &Menu::itemChanged, this, &Object::itemChanged);
}

QString BusMenu::Object::textDirection() const
{
    return QGuiApplication::isRightToLeft() ? QStringLiteral("rtl") : QStringLiteral("ltr");
}

QVariantMap BusMenu::Object::properties(int id, const QStringList &names) const
{
    QVariantMap all;
    if (id == rootId) {
        all.insert(QStringLiteral("children-display"), QStringLiteral("submenu"));
    } else {
        const Menu::Item &item = m_menu.itemAtIndex(indexOf(id));
        // A single underscore would mark the key to press.
        all.insert(QStringLiteral("label"),
                   QString(item.title).replace(u'_', QStringLiteral("__")));
        all.insert(QStringLiteral("enabled"), item.enabled);
    }
    if (!names.isEmpty())
        all.removeIf([&](const auto &entry) { return !names.contains(entry.key()); });
    return all;
}

void BusMenu::Object::itemChanged(int index)
{
    m_changed = true;
    const int id = idOf(index);
    Q_EMIT ItemsPropertiesUpdated({{id, properties(id)}}, {});
}

uint BusMenu::Object::GetLayout(int parentId, int recursionDepth, const QStringList &propertyNames,
                                BusMenuLayout &layout)
{
    layout.id = parentId;
    constexpr uint revision = 1; // items change, but none comes or goes
    if (!exists(parentId))
        return revision;
    layout.properties = properties(parentId, propertyNames);
    if (parentId == rootId && recursionDepth != 0) {
        for (int id = rootId + 1; exists(id); ++id)
            layout.children.append({id, properties(id, propertyNames), {}});
    }
    return revision;
}

QList<BusMenuItem> BusMenu::Object::GetGroupProperties(const QList<int> &ids,
                                                       const QStringList &propertyNames)
{
    QList<int> wanted = ids; // none named: all
    for (int id = rootId; ids.isEmpty() && exists(id); ++id)
        wanted.append(id);
    QList<BusMenuItem> found;
    for (const int id : wanted) {
        if (exists(id))
            found.append({id, properties(id, propertyNames)});
    }
    return found;
}

QDBusVariant BusMenu::Object::GetProperty(int id, const QString &name)
{
    const QVariant value = exists(id) ? properties(id).value(name) : QVariant();
    return QDBusVariant(value.isValid() ? value : QVariant(QString()));
}

void BusMenu::Object::Event(int id, const QString &eventId, const QDBusVariant &, uint)
{
    if (!exists(id))
        return;
    if (eventId == u"clicked")
        m_menu.choose(indexOf(id));
    else if (id == rootId && (eventId == u"opened" || eventId == u"closed"))
        m_menu.setOpen(eventId == u"opened");
}

QList<int> BusMenu::Object::EventGroup(const QList<BusMenuEvent> &events)
{
    QList<int> unknown;
    for (const BusMenuEvent &event : events) {
        if (exists(event.id))
            Event(event.id, event.name, event.data, event.time);
        else
            unknown.append(event.id);
    }
    return unknown;
}

bool BusMenu::Object::AboutToShow(int id)
{
    m_changed = false;
    if (id == rootId)
        m_menu.update();
    return m_changed;
}

QList<int> BusMenu::Object::AboutToShowGroup(const QList<int> &ids, QList<int> &idErrors)
{
    QList<int> changed;
    for (const int id : ids) {
        if (!exists(id))
            idErrors.append(id);
        else if (AboutToShow(id))
            changed.append(id);
    }
    return changed;
}

BusMenu::BusMenu(Menu &menu, QString path)
    : m_path(std::move(path))
{
    registerTypes();
    m_object = std::make_unique<Object>(menu);
    if (!QDBusConnection::sessionBus().registerObject(m_path, m_object.get(),
                                                      QDBusConnection::ExportAllSlots |
                                                          QDBusConnection::ExportAllProperties |
                                                          QDBusConnection::ExportAllSignals))
        qCWarning(lcPlatform).noquote() << "Can't serve the menu at" << m_path;
}

BusMenu::~BusMenu()
{
    QDBusConnection::sessionBus().unregisterObject(m_path);
}

#include "BusMenu.moc"
