#include "cli/Session.h"

#include "cli/Output.h"

Session::Session()
{
    m_helper.connectToHelper();
}

FrontEndObject &Session::frontEnd()
{
    if (!m_frontEnd)
        m_frontEnd.emplace(m_helper);
    return *m_frontEnd;
}

ExitStatus Session::report() const
{
    if (!failed())
        return Done;
    const HelperFailure &failure = *m_helper.failure();
    Output::error(failure.text);
    return failure.kind == HelperFailure::Kind::NoHelper ? NoHelper : Refused;
}
