#pragma once

#include "core/RecordsFixture.h"
#include "support/ScriptedDialogs.h"

namespace support {

/// Books with a few records, an empty registry, and somebody who keeps what is said. Forms that a
/// test leaves open are closed.
class ScreenTest : public tests::CoreRecords {
  protected:
    ScreenTest();
    ~ScreenTest() override;

    /// What was said, "title: text" each, since the last call.
    std::vector<std::string> Heard();
    /// The user answers the next questions so; No after that.
    void Answer(std::deque<bool> answers);

  private:
    std::unique_ptr<ScriptedDialogs> person_;
    std::size_t heard_ = 0;
};

} // namespace support
