#pragma once

#include "platform/tray/StatusItem.h"

#include <QTimer>

#include <memory>

class CVSyncManager;

/// The status item and its images: whether a PSP is there, and an animation while a sync runs. All
/// but show() and remove() works, unseen, while there is no item. Main thread.
class StatusIcon
{
public:
    /// Not owned, outliving it.
    StatusIcon(StatusBar &statusBar, CVSyncManager &manager);

    /// Makes the status item with that menu (not owned, outliving the item) unless there is one.
    void show(Menu &menu);
    void remove();
    /// Takes the item out of the user's reach; for a helper that is quitting.
    void disable();

    void setToolTip(const QString &text);

    void pspDidMount();
    void pspDidUnmount();

    void startSyncAnimation();
    void syncAnimationPing();
    void stopSyncAnimation();

private:
    void setImage(const QString &name);
    void setImages(const QString &name, const QString &alternateName);
    QString idleImage() const;

    StatusBar &m_statusBar;
    CVSyncManager &m_manager;
    std::unique_ptr<StatusItem> m_statusItem;
    QString m_toolTip;
    QTimer m_syncAnimationTimer;
    quint32 m_syncAnimationFrame = 0;
    qint32 m_syncAnimationDirection = 1;
};
