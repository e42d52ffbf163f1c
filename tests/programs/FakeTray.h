#pragma once

#include <QImage>
#include <QObject>
#include <QStringList>
#include <QVariantList>

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
    /// The image shown, at 22 pixels.
    QImage image() const;
    QString toolTip() const;
    /// The menu as it is without having been opened; what is disabled stands in brackets.
    QStringList menu() const;
    void sendMenuEvent(int id, const QString &event) const;

public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString &service) { m_item = service; }

private:
    QVariant property(const QString &name) const;
    QVariantList callMenu(const QString &method, const QVariantList &arguments) const;

    QString m_item;
};
