#include "platform/dialogs/Desktop.h"

#include <utility>

namespace platform {

namespace {

/// The desktop of programs without a screen: no program takes anything.
class NoDesktop : public Desktop {
  public:
    bool OpenWebPage(std::string_view /*address*/) override { return false; }
    bool WriteMail(std::string_view /*address*/) override { return false; }
    bool OpenDocument(std::string_view /*file*/) override { return false; }
};

std::unique_ptr<Desktop>& CurrentDesktop() {
    static std::unique_ptr<Desktop> current = std::make_unique<NoDesktop>();
    return current;
}

} // namespace

Desktop& TheDesktop() {
    return *CurrentDesktop();
}

void SetDesktop(std::unique_ptr<Desktop> desktop) {
    if (!desktop) desktop = std::make_unique<NoDesktop>();
    CurrentDesktop() = std::move(desktop);
}

} // namespace platform
