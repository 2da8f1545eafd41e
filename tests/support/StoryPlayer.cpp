#include "support/StoryPlayer.h"

#include <algorithm>
#include <stdexcept>

#include <fmt/core.h>

#include "core/Globals.h"
#include "platform/system/Clock.h"
#include "platform/values/Date.h"
#include "platform/values/Errors.h"
#include "platform/values/Text.h"
#include "support/Books.h"
#include "support/Crashes.h"
#include "support/Words.h"

namespace support {

namespace {

constexpr std::string_view kRefused = "refused: ";
constexpr std::string_view kNothing = "nothing in the ledger";

platform::Connection& Books() {
    return core::App().Connection;
}

bool IsField(std::string_view text) {
    const std::size_t end = text.find(" =");
    return end != std::string_view::npos && text.find(' ') == end;
}

std::pair<std::string, std::string> FieldOf(const std::string& text) {
    const std::size_t equals = text.find('=');
    return {text.substr(0, equals - 1), std::string(platform::Trim(text.substr(equals + 1)))};
}

bool IsLedgerRow(const StoryLine& line) {
    return line.answers.empty() && line.text.find(" | ") != std::string::npos &&
           !line.text.starts_with("SELECT ");
}

/// The real answer as it was expected if it begins with an expectation that ends with "...".
std::string AsExpected(const std::string& real, const std::string& expected) {
    const std::string_view start = std::string_view(expected).substr(0, expected.rfind("..."));
    return expected.ends_with("...") && real.starts_with(start) ? expected : real;
}

} // namespace

std::optional<std::string> Event::Added(std::string_view words) const {
    for (const std::string& addition : added) {
        if (addition.starts_with(words)) {
            return std::string(platform::Trim(addition.substr(words.size())));
        }
    }
    return {};
}

StoryPlayer::StoryPlayer()
    : token_([this](core::RecordKind kind, std::int16_t, std::int32_t) {
          told_ += fmt::format("{}{}{}", told_.empty() ? "" : " ", core::KindNumber(kind),
                               Books().InUnitOfWork() ? "?" : "");
      }) {
    AddCommonEvents();
}

void StoryPlayer::AddCommonEvents() {
    const auto execute = [this](std::string verb) {
        On(verb, [verb](const Event& event) { Books().Execute(verb + event.rest); });
    };
    for (const char* const verb : {"INSERT ", "UPDATE ", "DELETE "})
        execute(verb);
    for (const std::string verb : {"CREATE ", "DROP "})
        On(verb, [verb](const Event& event) { Books().RunScript(verb + event.rest + ";"); });
    On("SELECT ", [](const Event& event) { return Rows(Books(), "SELECT " + event.rest); });
    On("it is ", [](const Event& event) { platform::SetToday(platform::Date::Parse(event.rest)); });
    On("answer ", [this](const Event& event) {
        std::deque<bool> answers;
        for (const std::string& answer : Split(event.rest, ' '))
            answers.push_back(answer == "yes");
        dialogs_.reset();
        dialogs_ = std::make_unique<ScriptedDialogs>(answers);
    });
    On("asked", [this](const Event&) {
        Lines texts;
        for (const Prompt& prompt : dialogs_->Heard()) {
            for (const std::string& line : Split(prompt.text, '\n'))
                texts.push_back(line);
        }
        return texts;
    });
    On("told", [this](const Event&) {
        const std::string told = std::exchange(told_, "");
        return told.empty() ? Lines() : Lines{told};
    });
    On("elsewhere ", [this](const Event& event) {
        rival_ = std::make_unique<Rival>([this, event] { Do(event.rest); });
    });
    On("killed anywhere in ", [this](const Event& event) {
        const Crashes crashes = CrashAtEveryStatement([this, event] { Do(event.rest); });
        EXPECT_EQ(crashes.faults, Lines());
        EXPECT_GE(crashes.statements, 5);
        EXPECT_GT(crashes.asBefore, 0);
        EXPECT_EQ(crashes.asBefore + crashes.asAfter, crashes.statements);
    });
}

StoryPlayer::Lines StoryPlayer::Do(const std::string& text) {
    if (IsField(text)) {
        const auto [field, value] = FieldOf(text);
        Set(field, value);
        return {};
    }
    // A longer verb comes before its beginning.
    for (const auto& [verb, handler] : handlers_) {
        if (!text.starts_with(verb)) continue;
        const std::string rest(text.substr(verb.size()));
        const bool isWhole = verb == "elsewhere " || verb == "killed anywhere in " ||
                             verb.find_first_of("abcdefghijklmnopqrstuvwxyz") == std::string::npos;
        if (isWhole) return handler({rest, {}});
        Event event{std::string(platform::Trim(rest.substr(0, rest.find(", ")))), {}};
        for (std::size_t comma = 0; (comma = rest.find(", ", comma)) != std::string::npos;) {
            comma += 2;
            event.added.push_back(rest.substr(comma, rest.find(", ", comma) - comma));
        }
        return handler(event);
    }
    throw std::runtime_error("no such event: " + text);
}

StoryPlayer::Lines StoryPlayer::DoOrRefuse(const StoryLine& line) {
    const bool isRefused = !line.answers.empty() && line.answers.front().starts_with(kRefused);
    const bool isRival = line.text.starts_with("elsewhere ");
    const auto rival = isRival ? nullptr : std::move(rival_);
    Lines before;
    if (isRefused && !rival) before = Dump();
    Lines answer;
    try {
        answer = Do(line.text);
    } catch (const platform::Error& error) {
        answer = {std::string(kRefused) + error.what()};
    }
    if (rival) {
        EXPECT_TRUE(rival->HasWorked()) << "it failed, or this program wrote nothing";
        before = rival->BooksAfterwards();
    }
    if (isRefused) {
        EXPECT_EQ(Dump(), before) << "what is refused changes nothing";
    }
    return answer;
}

void StoryPlayer::Live(const StoryLine& line) {
    SCOPED_TRACE(line.text);
    Lines answer = DoOrRefuse(line);
    const bool wasRefused = !answer.empty() && answer.front().starts_with(kRefused);
    if (line.answers.empty() && !wasRefused) return;
    for (std::size_t i = 0; i < std::min(answer.size(), line.answers.size()); ++i)
        answer[i] = AsExpected(answer[i], line.answers[i]);
    const bool isNothing = line.answers == Lines{"nothing"};
    EXPECT_EQ(answer, isNothing ? Lines() : line.answers);
}

void StoryPlayer::Check(const StoryPart& part) {
    Lines expected;
    Lines real;
    bool hasLedger = false;
    for (const StoryLine& line : part.lines) {
        if (line.answers.empty() && IsField(line.text)) {
            const std::string field = FieldOf(line.text).first;
            expected.push_back(fmt::format("{} = {}", field, FieldOf(line.text).second));
            real.push_back(fmt::format("{} = {}", field, Get(field)));
        } else if (IsLedgerRow(line) || line.text == kNothing) {
            hasLedger = true;
        } else {
            Live(line);
        }
    }
    EXPECT_EQ(real, expected);
    if (!hasLedger) return;
    Lines ledger;
    for (const StoryLine& line : part.lines) {
        if (IsLedgerRow(line)) ledger.push_back(line.text);
    }
    EXPECT_EQ(Ledger(), ledger);
}

void StoryPlayer::Play(const Story& story) {
    SCOPED_TRACE(story.proves);
    ASSERT_FALSE(story.proves.empty()) << "a story begins with what it proves";
    bool proves = false;
    for (const StoryPart& part : story.parts) {
        if (part.name == "then") {
            Check(part);
            proves = true;
        } else {
            for (const StoryLine& line : part.lines) {
                Live(line);
                proves |= !line.answers.empty() || line.text.starts_with("killed ");
            }
        }
    }
    EXPECT_TRUE(proves) << "a story without an end proves nothing";
}

std::string StoryName(const testing::TestParamInfo<Story>& info) {
    return info.param.name;
}

} // namespace support
