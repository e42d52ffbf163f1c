#pragma once

#include "cli/ExitStatus.h"
#include "frontend/FrontEndObject.h"
#include "frontend/HelperClient.h"

#include <optional>

/// A command's dealings with the helper, from the first question to the goodbye, which comes last.
/// What fails is remembered by helper(); report() says it.
class Session
{
public:
    /// Reaches the helper, starting it when none runs.
    Session();

    HelperClient &helper() { return m_helper; }

    /// This command as the helper's connected front-end, from the first call on until the session
    /// ends.
    FrontEndObject &frontEnd();

    bool failed() const { return m_helper.failed(); }

    /// The exit status of the first failure, whose text goes to the standard error; Done without
    /// one.
    ExitStatus report() const;

private:
    HelperClient m_helper;
    std::optional<FrontEndObject> m_frontEnd; // gone first, while the helper can be told
};
