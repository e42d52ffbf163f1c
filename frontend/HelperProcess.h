#pragma once

#include "platform/bus/RemoteObject.h"
#include "platform/lists/Bundle.h"

#include <memory>

/// The helper that belongs to this program's bundle.
namespace HelperProcess {

/// Its bundle beside the running program's; where it lies, whether it is there or not.
Bundle bundle();

/// The object that it serves, by the name of this program's own build. Main thread.
std::unique_ptr<RemoteObject> remote();

/// Starts its executable, which outlives this program: it keeps neither this one's terminal nor its
/// folder. False where it can't be started.
bool startDetached(const QString &executable);

/// Whether a text of the helper's is that English one, whatever language the helper speaks.
bool isText(const QString &text, const char *english);

/// The file whose lock keeps two front-ends from starting it at once: a second helper would send
/// the first away under the other's hands. Its folder is made.
QString startLock();

} // namespace HelperProcess
