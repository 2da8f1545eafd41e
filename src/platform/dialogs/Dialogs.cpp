#include "platform/dialogs/Dialogs.h"

#include <cstdio>
#include <utility>

namespace platform {

namespace {

/// The dialogs of programs without a screen: nobody is there to answer, so nothing is agreed to.
class NobodyThere : public Dialogs {
  public:
    void ShowMessage(std::string_view title, std::string_view text, Icon /*icon*/) override {
        Print(title, text);
    }
    bool AskYesNo(std::string_view title, std::string_view text, Icon /*icon*/) override {
        Print(title, text);
        return false;
    }

  private:
    static void Print(std::string_view title, std::string_view text) {
        std::string line(title);
        if (!line.empty() && !text.empty()) line += ": ";
        line.append(text).append("\n");
        std::fputs(line.c_str(), stderr);
    }
};

std::unique_ptr<Dialogs>& CurrentDialogs() {
    static std::unique_ptr<Dialogs> current = std::make_unique<NobodyThere>();
    return current;
}

} // namespace

Dialogs& TheDialogs() {
    return *CurrentDialogs();
}

void SetDialogs(std::unique_ptr<Dialogs> dialogs) {
    if (!dialogs) dialogs = std::make_unique<NobodyThere>();
    CurrentDialogs() = std::move(dialogs);
}

} // namespace platform
