#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/dialogs/Choosers.h"

namespace support {

/// Stands for the user who chooses files and folders while it lives: keeps what is asked and
/// answers from a script, cancelling when the script has run out.
class ScriptedChoosers {
  public:
    explicit ScriptedChoosers(std::deque<std::string> answers = {})
        : script_(std::make_shared<Script>(Script{std::move(answers), {}})) {
        platform::SetChoosers(std::make_unique<Seam>(script_));
    }
    ~ScriptedChoosers() { platform::SetChoosers(nullptr); }
    ScriptedChoosers(const ScriptedChoosers&) = delete;
    ScriptedChoosers& operator=(const ScriptedChoosers&) = delete;
    ScriptedChoosers(ScriptedChoosers&&) = delete;
    ScriptedChoosers& operator=(ScriptedChoosers&&) = delete;

    const std::vector<platform::FileQuestion>& Asked() const { return script_->asked; }

  private:
    struct Script {
        std::deque<std::string> answers;
        std::vector<platform::FileQuestion> asked;
    };

    class Seam : public platform::Choosers {
      public:
        explicit Seam(std::shared_ptr<Script> script) : script_(std::move(script)) {}
        std::optional<std::string> OpenFile(const platform::FileQuestion& question) override {
            return Answer(question);
        }
        std::optional<std::string> SaveFile(const platform::FileQuestion& question) override {
            return Answer(question);
        }
        std::optional<std::string> Folder(std::string_view title, std::string_view start) override {
            return Answer({std::string(title), std::string(start), {}});
        }
        std::optional<std::uint32_t> Color(std::string_view, std::uint32_t) override { return {}; }

      private:
        std::optional<std::string> Answer(const platform::FileQuestion& question) {
            script_->asked.push_back(question);
            if (script_->answers.empty()) return std::nullopt;
            std::string answer = script_->answers.front();
            script_->answers.pop_front();
            return answer;
        }

        std::shared_ptr<Script> script_;
    };

    std::shared_ptr<Script> script_;
};

} // namespace support
