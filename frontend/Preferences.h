#pragma once

#include "util/Settings.h"

#include <functional>
#include <optional>

class QObject;

/// The settings as front-ends show and change them. Main thread.
namespace Preferences {

/// Installs the defaults; to be called before anything else here.
void begin();

const Settings::Key *find(const QString &name);
bool isDefault(const Settings::Key &key);

/// The text as a value of the setting's type and range; nothing for what is none.
std::optional<QVariant> valueIn(const QString &text, const Settings::Key &key);

/// Sets and writes it, and tells the other processes. Waits a second at most for others that write;
/// false where it can't be written.
bool set(const QString &name, const QVariant &value);

using Done = std::function<void(bool isWritten)>;
/// The same without waiting: it is read back at once, written by a worker, and `done` is called as
/// long as `context` lives.
void setLater(const QString &name, const QVariant &value, QObject *context, Done done);

/// Calls back whenever something has been changed, here or by another process, and has been read,
/// as long as `context` lives.
void observe(QObject *context, std::function<void()> changed);

} // namespace Preferences
