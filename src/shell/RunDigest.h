#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/DailyRun.h"

namespace shell {

/// A row that a run has posted, and the record that it was posted for.
struct DigestRow {
    std::int16_t recordKind = 0;
    std::int32_t recordId = 0;
    platform::Date date;
    std::string category;
    platform::Currency amount;
    /// Index into the digest's descriptions.
    std::size_t description = 0;
};

/// The rows that a daily run has posted and the records that it skipped, to be shown to the user.
class RunDigest : public core::RunListener {
  public:
    void Posted(int recordKind, std::int32_t id, std::string_view description,
                const std::vector<core::PostedRow>& rows) override;
    void Failed(int recordKind, std::int32_t id, std::string_view description,
                std::string_view reason) override;

    const std::vector<DigestRow>& Rows() const { return rows_; }
    const std::string& DescriptionOf(const DigestRow& row) const {
        return descriptions_[row.description];
    }
    /// Returns a line for each record that was skipped, with the reason.
    const std::vector<std::string>& Faults() const { return faults_; }

    /// Returns "Since 10/03/2026: 12 rent charges, 3 late fees" with the earliest date of a posted
    /// row; empty if nothing was posted.
    std::string Line() const;
    /// Returns "2 records could not be brought up to date"; empty if there were none.
    std::string FaultLine() const;

  private:
    std::vector<DigestRow> rows_;
    std::vector<std::string> descriptions_;
    std::vector<std::string> faults_;
};

} // namespace shell
