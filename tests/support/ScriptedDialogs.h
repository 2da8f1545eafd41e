#pragma once

#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/dialogs/Dialogs.h"

namespace support {

/// A message or question that was shown to the user.
struct Prompt {
    std::string title;
    std::string text;
    platform::Icon icon = platform::Icon::None;
    bool question = false;
};

/// Stands for the user while it lives: keeps what is said and answers from a script, No when the
/// script has run out.
class ScriptedDialogs {
  public:
    explicit ScriptedDialogs(std::deque<bool> answers = {})
        : script_(std::make_shared<Script>(Script{std::move(answers), {}})) {
        platform::SetDialogs(std::make_unique<Seam>(script_));
    }
    ~ScriptedDialogs() { platform::SetDialogs(nullptr); }
    ScriptedDialogs(const ScriptedDialogs&) = delete;
    ScriptedDialogs& operator=(const ScriptedDialogs&) = delete;
    ScriptedDialogs(ScriptedDialogs&&) = delete;
    ScriptedDialogs& operator=(ScriptedDialogs&&) = delete;

    const std::vector<Prompt>& Heard() const { return script_->heard; }
    /// How many answers nobody has asked for.
    std::size_t AnswersLeft() const { return script_->answers.size(); }

  private:
    struct Script {
        std::deque<bool> answers;
        std::vector<Prompt> heard;
    };

    class Seam : public platform::Dialogs {
      public:
        explicit Seam(std::shared_ptr<Script> script) : script_(std::move(script)) {}
        void ShowMessage(std::string_view title, std::string_view text,
                         platform::Icon icon) override {
            script_->heard.push_back({std::string(title), std::string(text), icon, false});
        }
        bool AskYesNo(std::string_view title, std::string_view text, platform::Icon icon) override {
            script_->heard.push_back({std::string(title), std::string(text), icon, true});
            if (script_->answers.empty()) return false;
            const bool answer = script_->answers.front();
            script_->answers.pop_front();
            return answer;
        }

      private:
        std::shared_ptr<Script> script_;
    };

    std::shared_ptr<Script> script_;
};

} // namespace support
