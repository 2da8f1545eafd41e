#include "platform/registry/Registry.h"

#include <utility>

#include "platform/system/Paths.h"

namespace platform {

namespace {

std::unique_ptr<Registry>& Current() {
    static std::unique_ptr<Registry> current;
    return current;
}

} // namespace

Registry& TheRegistry() {
    if (!Current()) Current() = OpenJsonRegistry(ConfigHome() / "Vestrel" / "registry.json");
    return *Current();
}

void SetRegistry(std::unique_ptr<Registry> registry) {
    Current() = std::move(registry);
}

} // namespace platform
