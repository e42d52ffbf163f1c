#include "sync/ModuleKind.h"

ModuleList modulesTakingPart(const ModuleCatalogue &catalogue, const QString &volume)
{
    ModuleList modules;
    for (const ModuleKind &kind : catalogue) {
        if (!kind.takesPart || kind.takesPart())
            modules.push_back(kind.make(volume));
    }
    return modules;
}
