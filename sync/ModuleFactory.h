#pragma once

#include "sync/CVSyncModule.h"

#include <functional>
#include <memory>

/// How to make each kind of module; handed to the manager from above, since the engine doesn't know
/// the modules. A kind that is empty takes part in nothing.
struct ModuleFactory
{
    using Make = std::function<std::unique_ptr<CVSyncModule>(CVSyncModuleDelegate *)>;

    Make music = nullptr;
    Make photos = nullptr;
    Make movies = nullptr;
    Make backup = nullptr;
    Make bookmarks = nullptr;
    Make contacts = nullptr;
};
