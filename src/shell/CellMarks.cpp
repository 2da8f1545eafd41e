#include "shell/CellMarks.h"

#include <array>

#include "core/Codes.h"
#include "core/RecordKinds.h"

namespace shell {

namespace {

constexpr int kRentStatusColumn = 7;
constexpr int kPaymentStatusColumn = 6;

struct MarkedWord {
    core::RecordKind kind;
    std::string_view word;
    Mark mark;
};

constexpr std::array<MarkedWord, 6> kMarkedWords = {{
    {core::kMortgage, core::kPaymentDue, Mark::Yellow},
    {core::kMortgage, core::kPaymentLate, Mark::Red},
    {core::kLease, core::kPaymentDue, Mark::Yellow},
    {core::kLease, core::kPaymentLate, Mark::Yellow},
    {core::kLease, core::kRentWarning, Mark::Red},
    {core::kLease, core::kRentEviction, Mark::Red},
}};

} // namespace

int MarkedColumn(core::RecordKind kind) {
    if (kind == core::kLease) return kRentStatusColumn;
    if (kind == core::kMortgage) return kPaymentStatusColumn;
    return -1;
}

Mark MarkOf(core::RecordKind kind, std::string_view word) {
    for (const MarkedWord& marked : kMarkedWords) {
        if (marked.kind == kind && marked.word == word) return marked.mark;
    }
    return Mark::None;
}

} // namespace shell
