#include "platform/printing/PrintStyle.h"

#include <utility>

namespace platform {

void PrintStyles::Add(std::string name, PrintStyle style) {
    styles_.insert_or_assign(std::move(name), std::move(style));
}

const PrintStyle* PrintStyles::Find(std::string_view name) const {
    const auto found = styles_.find(name);
    return found == styles_.end() ? nullptr : &found->second;
}

} // namespace platform
