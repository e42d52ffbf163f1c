#pragma once

#include <QString>

#include <memory>

class Menu;

/// Our place in the desktop's tray: an image with a menu. It is gone with the object. Images are
/// resources by name; a name that has none leaves the item without an image. Main thread.
class StatusItem
{
public:
    virtual ~StatusItem() = default;

    virtual void setImage(const QString &name) = 0;
    /// What is shown beside the program's name while the pointer rests on the item.
    virtual void setToolTip(const QString &text) = 0;
    /// Shown in the image's place while the menu is open.
    virtual void setAlternateImage(const QString &name) = 0;
    /// Not owned; outlives the item.
    virtual void setMenu(Menu *menu) = 0;
    /// An item is made disabled; the desktop shows it while it is enabled.
    virtual void setEnabled(bool enabled) = 0;
    /// Whether there is a tray that shows it now.
    virtual bool isShown() const = 0;
};

/// Where status items come from.
class StatusBar
{
public:
    virtual ~StatusBar() = default;
    virtual std::unique_ptr<StatusItem> makeStatusItem() = 0;
};

/// The desktop's tray. An item appears as soon as there is one: through the session bus (also
/// without a display), or in an X11 tray where that is all there is. `imageFolder` holds "NAME.png"
/// of 22 by 22 pixels and "NAME@2x.png" of twice that.
std::unique_ptr<StatusBar> makeStatusBar(const QString &imageFolder);
