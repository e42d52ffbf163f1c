#include "cli/Session.h"

#include "cli/Output.h"
#include "platform/bus/NamedConnection.h"

Session::Session(Stay stay)
    : m_frontEnd(stay)
{
    m_helper.connectToHelper(m_frontEnd.path());
}

Session::~Session()
{
    m_helper.tell(Protocol::applicationWillQuit);
    NamedConnection::flush();
}

ExitStatus Session::report() const
{
    if (!failed())
        return Done;
    const HelperFailure &failure = *m_helper.failure();
    Output::error(failure.text);
    return failure.kind == HelperFailure::Kind::NoHelper ? NoHelper : Refused;
}
