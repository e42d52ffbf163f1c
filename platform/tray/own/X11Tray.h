#pragma once

#include "platform/tray/own/StatusImages.h"

#include <QString>

#include <memory>

class Menu;

/// A status item in an X11 system tray. It waits for a tray where there is none yet. Main thread.
/// For this folder's own use.
class X11Tray
{
public:
    X11Tray(StatusImages &images, Menu &menu);
    ~X11Tray();

    /// Whether this program's display can have such a tray at all.
    static bool isPossible();

    void setImage(const QString &name);
    void setToolTip(const QString &text);

private:
    class Private;
    std::unique_ptr<Private> d;
};
