#include "cli/Session.h"

#include "cli/Output.h"

ExitStatus Session::report() const
{
    if (!failed())
        return Done;
    const HelperFailure &failure = *m_helper.failure();
    Output::error(failure.text);
    return failure.kind == HelperFailure::Kind::NoHelper ? NoHelper : Refused;
}
