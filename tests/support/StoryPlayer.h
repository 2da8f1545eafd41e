#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "core/NotifyAll.h"
#include "support/Rival.h"
#include "support/ScriptedDialogs.h"
#include "support/Story.h"

namespace support {

/// An event of a story: what follows its verb, and what was added after commas.
struct Event {
    std::string rest;
    std::vector<std::string> added;

    /// What follows these words in one of the additions, if one begins with them.
    std::optional<std::string> Added(std::string_view words) const;
};

/// Lives through a story on the open books of the process. Every room knows these events:
///
///   it is DATE              the day changes, and the program is not started
///   INSERT, UPDATE, DELETE, CREATE, DROP ...   the statement
///   SELECT ...              answers its rows
///   answer yes no           to the next questions; without an answer it is no
///   asked                   answers the messages and questions so far
///   told                    answers the kinds of the broadcasts so far; a question mark follows a
///                           kind that was told inside a unit of work
///   elsewhere EVENT         in a second program, after the next event has read and before it
///                           writes
///   killed anywhere in EVENT   the process is killed before each statement of it that writes, and
///                           must leave the books as before the event or as after it
///
/// An event that throws a platform::Error answers `refused: MESSAGE`, and must have changed
/// nothing. An expected answer that ends with "..." is the beginning of the real one.
class StoryPlayer {
  protected:
    using Lines = std::vector<std::string>;

    StoryPlayer();
    virtual ~StoryPlayer() = default;

    void Play(const Story& story);

    /// Adds an event that begins with this verb; `handler` returns the answer, or nothing.
    template <class Handler>
    void On(std::string_view verb, Handler handler) {
        handlers_[std::string(verb)] = [handler](const Event& event) -> Lines {
            if constexpr (std::is_void_v<std::invoke_result_t<Handler, const Event&>>) {
                handler(event);
                return {};
            } else {
                return handler(event);
            }
        };
    }

    /// Writes a field of the main record of the story, and reads one.
    virtual void Set(const std::string& field, const std::string& value) = 0;
    virtual std::string Get(const std::string& field) = 0;
    /// The rows of the ledger as a story shows them.
    virtual Lines Ledger() = 0;

  private:
    Lines Do(const std::string& text);
    Lines DoOrRefuse(const StoryLine& line);
    void Live(const StoryLine& line);
    void Check(const StoryPart& part);
    void AddCommonEvents();

    std::map<std::string, std::function<Lines(const Event&)>, std::greater<>> handlers_;
    std::unique_ptr<ScriptedDialogs> dialogs_;
    std::unique_ptr<Rival> rival_;
    std::string told_;
    core::NotifyToken token_;
};

/// The name of a story's test.
std::string StoryName(const testing::TestParamInfo<Story>& info);

} // namespace support
