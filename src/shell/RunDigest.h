#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/DailyRun.h"
#include "core/RecordKinds.h"

namespace shell {

/// A row that a run has posted, and the record that it was posted for.
struct DigestRow {
    core::RecordKind recordKind = core::kNone;
    std::int32_t recordId = 0;
    platform::Date date;
    std::string category;
    platform::Currency amount;
    core::RunReason reason;
    /// The row's own id in its ledger.
    std::int32_t rowId = 0;
    /// Index into the digest's descriptions.
    std::size_t description = 0;
};

/// A record that a run skipped, and why.
struct DigestFault {
    core::RecordKind recordKind = core::kNone;
    std::int32_t recordId = 0;
    std::string description;
    std::string reason;
};

/// The rows that a daily run has posted and the records that it skipped, to be shown to the user.
class RunDigest : public core::RunListener {
  public:
    void Posted(core::RecordKind recordKind, std::int32_t id, std::string_view description,
                const std::vector<core::PostedRow>& rows) override;
    void Failed(core::RecordKind recordKind, std::int32_t id, std::string_view description,
                std::string_view reason) override;

    const std::vector<DigestRow>& Rows() const { return rows_; }
    const std::string& DescriptionOf(const DigestRow& row) const {
        return descriptions_[row.description];
    }
    const std::vector<DigestFault>& Faults() const { return faults_; }

    /// Returns "Since 10/03/2026: 12 rent charges, 3 late fees" with the earliest date of a posted
    /// row; empty if nothing was posted.
    std::string Line() const;
    /// Returns "2 records could not be brought up to date"; empty if there were none.
    std::string FaultLine() const;
    /// Returns the earliest date of a posted row; unset if nothing was posted.
    platform::Date FirstDay() const;

    /// Returns why the history of runs doesn't have this run; empty if it has it.
    const std::string& HistoryFault() const { return historyFault_; }
    void SetHistoryFault(std::string reason) { historyFault_ = std::move(reason); }

  private:
    std::vector<DigestRow> rows_;
    std::vector<std::string> descriptions_;
    std::vector<DigestFault> faults_;
    std::string historyFault_;
};

} // namespace shell
