#pragma once

#include "Workbench.h"
#include "support/HelperHarness.h"

/// The helper with a home whose music dropbox holds a number of files. They lie in `sources()` as
/// another program would copy them.
class DropboxHome
{
public:
    /// `perFolder` files of `bytes` each in a folder. Where an `image` of so many bytes is wanted,
    /// the stick is a mounted one (as root only).
    struct Shape
    {
        int files;
        int perFolder;
        qsizetype bytes;
        qint64 image = 0;
    };
    explicit DropboxHome(const Shape &shape);
    ~DropboxHome();

    QString sources() const
    {
        return m_folder / QStringLiteral("home/Documents/Caravel/Dropboxes/Music");
    }
    QString volume() const { return m_folder / QStringLiteral("volumes/STICK"); }
    QString music() const { return volume() + QStringLiteral("/PSP/MUSIC"); }

    /// One run, until the user hears that it is done; stops the program where it did not complete.
    void sync();
    /// Lets the estimate end that follows a run.
    static void settle() { HelperHarness::settle(); }
    /// Selects what lies in the dropbox, or nothing.
    void select(bool everything);
    void emptyStick() const;

private:
    void fill(const Shape &shape) const;
    void mountImage(qint64 bytes) const;

    const Shape m_shape;
    Workbench m_folder;
    HelperHarness m_helper;
};
