#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace platform {

enum class Icon { None, Information, Question, Exclamation, Critical };

/// Messages and questions to the user. Under test they are answered from a script and recorded.
class Dialogs {
  public:
    virtual ~Dialogs() = default;

    /// Shows a message with one OK button.
    virtual void ShowMessage(std::string_view title, std::string_view text, Icon icon) = 0;
    /// Asks a question with Yes and No, of which No is the default; returns true for Yes.
    virtual bool AskYesNo(std::string_view title, std::string_view text, Icon icon) = 0;
};

/// Returns the dialogs of this process. Without SetDialogs messages go to standard error and every
/// question is answered No; setting null restores that.
Dialogs& TheDialogs();
void SetDialogs(std::unique_ptr<Dialogs> dialogs);

} // namespace platform
