#include "core/BatchRun.h"

#include <string>
#include <utility>

#include "core/Descriptions.h"
#include "core/Globals.h"
#include "core/MessagePump.h"
#include "core/RecordKinds.h"
#include "platform/values/Text.h"

namespace core {

using platform::Recordset;
using platform::UnitOfWork;

namespace {

// Enough rows that a commit's wait for the disk no longer counts, few enough that a long catch-up
// stays small in memory.
constexpr std::size_t kRowsPerCommit = 50'000;

std::string Describe(std::int16_t kind, std::int32_t id) {
    std::string description = GetDescription(kind, id, 0, false);
    if (!description.empty()) return description;
    return platform::ToLower(RecordKindName(kind)) + " " + std::to_string(id);
}

/// What the listener is told once it is kept.
class Outcome {
  public:
    explicit Outcome(std::int16_t kind) : kind_(kind) {}

    void Add(std::int32_t id, std::vector<PostedRow> rows) {
        rows_ += rows.size();
        if (!rows.empty()) posted_.emplace_back(id, std::move(rows));
    }

    void AddFault(std::int32_t id, std::string reason) {
        faults_.emplace_back(id, std::move(reason));
    }

    bool IsFull() const { return rows_ >= kRowsPerCommit; }

    void Tell(RunListener& listener) {
        for (const auto& [id, rows] : posted_)
            listener.Posted(kind_, id, Describe(kind_, id), rows);
        for (const auto& [id, reason] : faults_)
            listener.Failed(kind_, id, Describe(kind_, id), reason);
        *this = Outcome(kind_);
    }

  private:
    std::int16_t kind_;
    std::size_t rows_ = 0;
    std::vector<std::pair<std::int32_t, std::vector<PostedRow>>> posted_;
    std::vector<std::pair<std::int32_t, std::string>> faults_;
};

} // namespace

void UpdateEach(std::int16_t kind, std::string_view select, std::string_view idField,
                const UpdateOne& update, RunListener& listener) {
    Recordset rows;
    rows.Open(App().Connection, select, platform::CursorMode::Updatable);
    Outcome outcome(kind);
    const auto updateCurrent = [&] {
        const std::int32_t id = rows[idField].AsLong();
        try {
            outcome.Add(id, update(rows));
        } catch (const platform::Error& error) {
            rows.CancelUpdate();
            outcome.AddFault(id, error.what());
        }
    };
    while (!rows.Eof()) {
        UnitOfWork unit(App().Connection);
        for (; !rows.Eof() && !outcome.IsFull(); rows.MoveNext())
            updateCurrent();
        unit.Commit();
        outcome.Tell(listener);
        LetMessagesRun();
    }
}

} // namespace core
