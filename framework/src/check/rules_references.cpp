#include "rules.h"

#include <lcdmainconfig/device.h>

namespace lcdcheck {

std::set<Field> fieldsOfReferences()
{
    using namespace LCD::MainConfig;
    return {fieldOf<s_DeviceFeature>(&s_DeviceFeature::moduleId), fieldOf<s_SlotAttr>(&s_SlotAttr::pluginDirection)};
}

void judgeReferences(const Collected& /*collected*/, Findings& /*findings*/) {}

} // namespace lcdcheck
