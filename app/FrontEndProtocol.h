#pragma once

#include "platform/bus/NamedConnection.h"

#include <vector>

class CaravelHelperController;

/// What a front-end may call: Protocol::helperMethods, bound to the helper.
namespace FrontEndProtocol {

/// The controller must outlive the methods.
std::vector<RemoteMethod> methods(CaravelHelperController &controller);

} // namespace FrontEndProtocol
