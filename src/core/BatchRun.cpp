#include "core/BatchRun.h"

#include <string>
#include <utility>

#include "core/Descriptions.h"
#include "core/Globals.h"
#include "core/MessagePump.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "core/Session.h"
#include "platform/values/Text.h"

namespace core {

using platform::Recordset;
using platform::UnitOfWork;

namespace {

// Enough rows that the wait for the disk at a commit no longer matters, few enough that a long
// catch-up needs little memory.
constexpr std::size_t kRowsPerCommit = 50'000;

/// Returns the record's description. If the name is empty (the description then begins with the
/// comma after the name), the record is called by its number.
std::string Describe(RecordKind kind, std::int32_t id) {
    std::string description = GetDescription(kind, id, 0, false);
    const std::string_view shown = platform::Trim(description);
    if (!shown.empty() && shown.front() != ',') return description;
    return platform::ToLower(RecordKindName(kind)) + " " + std::to_string(id);
}

/// The results of a batch, reported to the listener once the batch is committed.
class Outcome {
  public:
    explicit Outcome(RecordKind kind) : kind_(kind) {}

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
    RecordKind kind_;
    std::size_t rows_ = 0;
    std::vector<std::pair<std::int32_t, std::vector<PostedRow>>> posted_;
    std::vector<std::pair<std::int32_t, std::string>> faults_;
};

/// Runs over the rows of one select.
class Batches {
  public:
    Batches(RecordKind kind, std::string_view select, std::string_view idField,
            const UpdateOne& update)
        : select_(select), idField_(idField), update_(update), outcome_(kind) {
        rows_ = Write(select);
    }

    /// Updates the next records and keeps the results; returns false when all are done.
    bool DoNext() {
        if (rows_.Eof()) return false;
        UnitOfWork unit(App().Connection);
        for (; !rows_.Eof() && !outcome_.IsFull(); rows_.MoveNext())
            UpdateCurrent();
        unit.Commit();
        return true;
    }

    void Tell(RunListener& listener) { outcome_.Tell(listener); }

  private:
    void UpdateCurrent() {
        const std::int32_t id = rows_[idField_].AsLong();
        try {
            outcome_.Add(id, update_(rows_));
        } catch (const platform::ConflictError&) {
            rows_.CancelUpdate();
            UpdateAsStored(id);
        } catch (const platform::Error& error) {
            rows_.CancelUpdate();
            outcome_.AddFault(id, error.what());
        }
    }

    /// Another program has changed or deleted the record since the rows were read. It may have been
    /// brought up to date already, so everything is decided again from what is stored now.
    void UpdateAsStored(std::int32_t id) {
        std::string sql = select_;
        AddWhere(sql, idField_ + " = ?");
        try {
            Recordset row = Write(sql, {id});
            for (; !row.Eof(); row.MoveNext())
                outcome_.Add(id, update_(row));
        } catch (const platform::Error& error) {
            outcome_.AddFault(id, error.what());
        }
    }

    std::string select_;
    std::string idField_;
    const UpdateOne& update_;
    Recordset rows_;
    Outcome outcome_;
};

} // namespace

void UpdateEach(RecordKind kind, std::string_view select, std::string_view idField,
                const UpdateOne& update, RunListener& listener) {
    Batches batches(kind, select, idField, update);
    while (batches.DoNext()) {
        batches.Tell(listener);
        LetMessagesRun();
    }
}

} // namespace core
