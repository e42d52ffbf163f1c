#pragma once

#include "platform/lists/Bundle.h"

#include <QString>

/// The user's list of programs that start at login, kept in the "loginwindow" domain under
/// "AutoLaunchedApplicationDictionary". No Linux session reads that list, so the desktop's own
/// autostart entry follows it. Main thread.
class LoginItems
{
public:
    /// `frontEnd` is the front-end's bundle.
    LoginItems(Bundle helper, QString frontEnd);

    /// Puts the helper in, first, or takes it out; takes the front-end out in any case.
    void setStartOnLogin(bool enabled) const;

    /// Removes every item whose path ends in the same component as `path` and, if enabled, puts a
    /// new one for it at the front. A list that can't be read is left alone and named in the system
    /// log; false then.
    static bool editStartupItems(const QString &path, bool enabled, bool hide);

private:
    const Bundle m_helper;
    const QString m_frontEnd;
};
