#pragma once

#include <QImage>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

/// A desktop's tray: the watcher that status items register with, and what a panel reads of the one
/// that did. It listens on the test program's session bus while it lives.
class FakeTray : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
public:
    FakeTray();
    ~FakeTray() override;

    /// Whether an item has registered and is still there.
    bool hasItem() const;
    QVariant property(const QString &name) const;
    /// The image shown, at 22 pixels.
    QImage image() const;
    /// How often the item has announced a new image.
    int newImages() const { return m_newImages; }

    struct MenuItem
    {
        QString label;
        bool enabled = false;
        bool operator==(const MenuItem &) const = default;
    };
    /// The menu as it is without having been opened.
    QList<MenuItem> menu() const;
    /// Label and state of an item, as "Sync Now" or "(Sync Now)" for a disabled one.
    QString menuItem(int index) const;
    void sendMenuEvent(int id, const QString &event) const;
    void choose(int index) const { sendMenuEvent(index + 1, QStringLiteral("clicked")); }

public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString &service);
    void countNewImage() { ++m_newImages; }

private:
    QString m_item;
    int m_newImages = 0;
};
