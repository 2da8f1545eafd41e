#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace platform {

enum class Icon { None, Information, Question, Exclamation, Critical };

/// The messages and questions that the logic may put to the user. Under test it answers from a
/// script and keeps what was said.
class Dialogs {
  public:
    virtual ~Dialogs() = default;

    /// A message with one OK button.
    virtual void ShowMessage(std::string_view title, std::string_view text, Icon icon) = 0;
    /// A question with Yes and No; true for Yes.
    virtual bool AskYesNo(std::string_view title, std::string_view text, Icon icon) = 0;
};

/// The dialogs of this process. Without SetDialogs messages go to standard error and every
/// question is answered No; null brings that back.
Dialogs& TheDialogs();
void SetDialogs(std::unique_ptr<Dialogs> dialogs);

} // namespace platform
