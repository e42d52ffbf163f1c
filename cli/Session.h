#pragma once

#include "cli/ExitStatus.h"
#include "frontend/FrontEndObject.h"
#include "frontend/HelperClient.h"

/// A command's dealings with the helper, from the first question to the goodbye, which comes last.
/// What fails is remembered by helper(); report() says it.
class Session
{
public:
    using Stay = FrontEndObject::Stay;
    /// Reaches the helper, starting it when none runs, as a connected front-end of its.
    explicit Session(Stay stay = Stay::ForOneQuestion);
    ~Session();
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    HelperClient &helper() { return m_helper; }
    FrontEndObject &frontEnd() { return m_frontEnd; }

    bool failed() const { return m_helper.failed(); }

    /// The exit status of the first failure, whose text goes to the standard error; Done without
    /// one.
    ExitStatus report() const;

private:
    HelperClient m_helper;
    FrontEndObject m_frontEnd;
};
