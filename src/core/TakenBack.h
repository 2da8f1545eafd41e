#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/RecordKinds.h"
#include "core/RunReason.h"
#include "platform/values/Date.h"

namespace core {

// Rows of the daily run that the user took back on purpose. The run posts none of them again,
// whatever it is asked to charge; otherwise it goes on as if they had been posted and deleted.
//
// Failures are thrown. Books of an earlier version have no such rows.

/// A row of the run that was taken back.
struct TakenRow {
    /// The record, the kind of posting and the day, which together identify the row.
    RecordKind recordKind = kNone;
    std::int32_t recordId = 0;
    Posting posting = Posting::Unknown;
    platform::Date date{};
    /// The row's id in its ledger.
    std::int32_t rowId = 0;
    /// The day on which it was taken back.
    platform::Date takenOn{};
    /// The deleted row, to be posted again; empty if it had been deleted before.
    std::string content{};

    /// Returns whether both are the same row of the run.
    bool IsSameRow(const TakenRow& other) const;
};

/// The rows of one record that were taken back.
class TakenBack {
  public:
    TakenBack(RecordKind recordKind, std::int32_t recordId) : kind_(recordKind), id_(recordId) {}

    /// Returns whether the row of this kind and day was taken back. Reads the books only at its
    /// first call, so that it costs nothing for a record that has nothing to post.
    bool Has(Posting posting, platform::Date date);

  private:
    RecordKind kind_;
    std::int32_t id_;
    std::optional<std::vector<std::pair<Posting, std::string>>> rows_;
};

/// Returns every row that was taken back, without its content.
std::vector<TakenRow> ReadTakenBack();

/// Returns what is stored about the same row; nothing if it isn't taken back.
std::optional<TakenRow> FindTakenBack(const TakenRow& row);

void RememberTakenBack(const TakenRow& row);
void ForgetTakenBack(const TakenRow& row);
/// Forgets the rows of a record that is deleted.
void ForgetTakenBackOf(RecordKind recordKind, std::int32_t recordId);

} // namespace core
