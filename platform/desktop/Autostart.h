#pragma once

#include <QString>

/// The programs that the desktop starts when the user logs in: one desktop entry each in
/// "$HOME/.config/autostart". Main thread.
namespace Autostart {

/// Has the program started at login, under the entry "<entry>.desktop"; an entry that says so
/// already is left untouched. False, with a line in the system log, where it can't be written.
bool add(const QString &entry, const QString &name, const QString &executable);

/// Takes the entry away; true where there is none (any more).
bool remove(const QString &entry);

} // namespace Autostart
