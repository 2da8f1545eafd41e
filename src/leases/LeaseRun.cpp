#include "leases/LeaseRun.h"

#include <string>
#include <utility>
#include <vector>

#include "core/Descriptions.h"
#include "core/Globals.h"
#include "core/MessagePump.h"
#include "core/RecordKinds.h"
#include "leases/mLease.h"

namespace leases {

using platform::CursorMode;
using platform::Recordset;
using platform::UnitOfWork;

namespace {

// Enough rows that a commit's wait for the disk no longer counts, few enough that a long catch-up
// stays small in memory.
constexpr std::size_t kRowsPerCommit = 50'000;

std::string Describe(std::int32_t idLease) {
    const std::string description = core::GetDescription(core::kLease, idLease, 0, false);
    return description.empty() ? "lease " + std::to_string(idLease) : description;
}

/// What the listener is told once it is kept.
class Outcome {
  public:
    void Add(std::int32_t idLease, std::vector<Charge> charges) {
        rows_ += charges.size();
        if (!charges.empty()) posted_.emplace_back(idLease, std::move(charges));
    }

    void AddFault(std::int32_t idLease, std::string reason) {
        faults_.emplace_back(idLease, std::move(reason));
    }

    bool IsFull() const { return rows_ >= kRowsPerCommit; }

    void Tell(core::RunListener& listener) {
        for (const auto& [idLease, charges] : posted_) {
            std::vector<core::PostedRow> rows;
            rows.reserve(charges.size());
            for (const Charge& charge : charges) {
                rows.push_back({charge.date, CategoryOf(charge.kind), charge.amount});
            }
            listener.Posted(core::kLease, idLease, Describe(idLease), rows);
        }
        for (const auto& [idLease, reason] : faults_) {
            listener.Failed(core::kLease, idLease, Describe(idLease), reason);
        }
        *this = Outcome();
    }

  private:
    std::size_t rows_ = 0;
    std::vector<std::pair<std::int32_t, std::vector<Charge>>> posted_;
    std::vector<std::pair<std::int32_t, std::string>> faults_;
};

void UpdateOne(Recordset& leases, Outcome& outcome) {
    const std::int32_t idLease = leases["IdLease"].AsLong();
    try {
        outcome.Add(idLease, UpdateLease(leases, WalkMode::CatchUp));
    } catch (const platform::Error& error) {
        leases.CancelUpdate();
        outcome.AddFault(idLease, error.what());
    }
}

} // namespace

void UpdateLeases(core::RunListener& listener) {
    Recordset leases;
    leases.Open(core::App().Connection, "SELECT * FROM LEASE", CursorMode::Updatable);
    Outcome outcome;
    while (!leases.Eof()) {
        UnitOfWork unit(core::App().Connection);
        for (; !leases.Eof() && !outcome.IsFull(); leases.MoveNext())
            UpdateOne(leases, outcome);
        unit.Commit();
        outcome.Tell(listener);
        core::LetMessagesRun();
    }
}

} // namespace leases
