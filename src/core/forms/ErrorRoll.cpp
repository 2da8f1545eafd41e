#include "core/forms/ErrorRoll.h"

#include "platform/dialogs/Dialogs.h"

namespace core::forms {

std::string ErrorRollText(const std::vector<std::string>& lines) {
    // Users know the list by this spelling.
    std::string text = "The following errors have occured:\n\n";
    for (const std::string& line : lines)
        text.append(line).append("\n");
    return text;
}

bool ShowErrorRoll(const std::vector<std::string>& lines) {
    if (lines.empty()) return true;
    platform::TheDialogs().ShowMessage("Whoa!", ErrorRollText(lines), platform::Icon::Exclamation);
    return false;
}

void ShowFailure(const std::exception& failure) {
    platform::TheDialogs().ShowMessage("Vestrel", failure.what(), platform::Icon::Critical);
}

} // namespace core::forms
