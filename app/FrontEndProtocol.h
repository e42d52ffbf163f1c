#pragma once

#include "platform/bus/NamedConnection.h"

#include <vector>

class CaravelHelperController;

/// What a front-end may call: the methods of "org.caravel.CaravelHelperProtocol", in their declared
/// order. Names, types and modes are fixed: front-ends of other builds know them.
namespace FrontEndProtocol {

/// The controller must outlive the methods.
std::vector<RemoteMethod> methods(CaravelHelperController &controller);

} // namespace FrontEndProtocol
