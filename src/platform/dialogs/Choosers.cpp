#include "platform/dialogs/Choosers.h"

#include <utility>

namespace platform {

namespace {

/// The choosers of programs without a screen: nothing is ever chosen.
class NobodyChooses : public Choosers {
  public:
    std::optional<std::string> OpenFile(const FileQuestion& /*question*/) override { return {}; }
    std::optional<std::string> SaveFile(const FileQuestion& /*question*/) override { return {}; }
    std::optional<std::string> Folder(std::string_view /*title*/,
                                      std::string_view /*start*/) override {
        return {};
    }
    std::optional<std::uint32_t> Color(std::string_view /*title*/, std::uint32_t /*rgb*/) override {
        return {};
    }
};

std::unique_ptr<Choosers>& CurrentChoosers() {
    static std::unique_ptr<Choosers> current = std::make_unique<NobodyChooses>();
    return current;
}

} // namespace

Choosers& TheChoosers() {
    return *CurrentChoosers();
}

void SetChoosers(std::unique_ptr<Choosers> choosers) {
    if (!choosers) choosers = std::make_unique<NobodyChooses>();
    CurrentChoosers() = std::move(choosers);
}

} // namespace platform
