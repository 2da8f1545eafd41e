#pragma once

#include <memory>
#include <vector>

#include "core/Table.h"
#include "shell/DigestTable.h"
#include "shell/RunHistory.h"

namespace shell {

/// The runs of a history as a table, a row each: when it was, the days it covered, how many rows it
/// posted and records it skipped. The first column numbers them from 1. The runs must outlive the
/// table.
class RunTable : public core::Table {
  public:
    explicit RunTable(const std::vector<PastRun>& runs);

    const std::vector<core::TableColumn>& Columns() const override { return columns_; }
    std::int64_t RowCount() const override { return std::ssize(runs_); }
    platform::Value ValueAt(std::int64_t row, std::size_t column) const override;

  private:
    const std::vector<PastRun>& runs_;
    std::vector<core::TableColumn> columns_;
};

/// Every row of every run of a history, with the time of its run and the record it is about. The
/// runs must outlive the table.
class RunRowTable : public core::Table {
  public:
    RunRowTable(const std::vector<PastRun>& runs,
                const std::shared_ptr<const TakenRows>& takenBack);

    const std::vector<core::TableColumn>& Columns() const override { return columns_; }
    std::int64_t RowCount() const override { return std::ssize(places_); }
    platform::Value ValueAt(std::int64_t row, std::size_t column) const override;

  private:
    struct Place {
        std::size_t run = 0;
        std::int32_t number = 0;
    };

    const std::vector<PastRun>& runs_;
    std::vector<std::unique_ptr<DigestTable>> tables_;
    std::vector<Place> places_;
    std::vector<core::TableColumn> columns_;
};

} // namespace shell
