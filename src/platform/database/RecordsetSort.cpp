#include <algorithm>
#include <span>
#include <stack>

#include "platform/database/RecordsetState.h"
#include "platform/database/SortKeys.h"
#include "platform/values/Errors.h"
#include "platform/values/Text.h"

namespace platform {

namespace {

struct Place {
    std::uint64_t number; // for the letters or the value being compared
    std::uint32_t was;    // the row's former place
};

/// Orders rows by comparing only numbers: the numbers of the first key's values, then, within each
/// run of equal rows, the numbers of the next letters or the next key. No row is compared twice by
/// the same letters.
class Sorter {
  public:
    Sorter(const RowBuffer& rows, const std::vector<dialect::ResultColumn>& columns,
           std::vector<SortKey> keys, const std::vector<std::uint32_t>& order)
        : rows_(rows), columns_(columns), keys_(std::move(keys)), order_(order) {}

    std::vector<std::uint32_t> Sorted() {
        places_.reserve(order_.size());
        for (std::uint32_t place = 0; place < order_.size(); ++place)
            places_.push_back({0, place});
        runs_.push({0, places_.size(), 0, 0});
        while (!runs_.empty()) {
            const Run run = runs_.top();
            runs_.pop();
            SortRun(run);
        }
        std::vector<std::uint32_t> sorted(order_.size());
        std::ranges::transform(places_, sorted.begin(),
                               [this](const Place& place) { return order_[place.was]; });
        return sorted;
    }

  private:
    struct Run {
        std::size_t begin, end;
        std::size_t key;
        std::size_t passed; // letters of the key's texts, which are equal
    };

    FieldType TypeOf(std::size_t key) const { return columns_[keys_[key].field].type; }

    Cell CellOf(const Place& place, std::size_t key) const {
        return rows_.ReadAt(order_[place.was], keys_[key].field);
    }

    void SortRun(const Run& run) {
        const std::span places(places_.data() + run.begin, run.end - run.begin);
        const std::uint64_t turned = keys_[run.key].descending ? ~std::uint64_t{0} : 0;
        for (Place& place : places) {
            place.number = SortNumber(CellOf(place, run.key), TypeOf(run.key), run.passed) ^ turned;
        }
        std::ranges::sort(places, [](const Place& a, const Place& b) {
            return a.number != b.number ? a.number < b.number : a.was < b.was;
        });
        for (std::size_t begin = run.begin; begin < run.end;) {
            std::size_t end = begin + 1;
            while (end < run.end && places_[end].number == places_[begin].number)
                ++end;
            if (end - begin > 1) PutOff({begin, end, run.key, run.passed}, turned);
            begin = end;
        }
    }

    // Leaves a run of rows that are equal so far to be sorted by the next letters or key, if there
    // is one.
    void PutOff(Run run, std::uint64_t turned) {
        const std::uint64_t number = places_[run.begin].number ^ turned;
        if (IsUndecided(number, TypeOf(run.key)) && !HoldsOneText(run)) {
            run.passed += kSortLetters;
            runs_.push(run);
        } else if (run.key + 1 < keys_.size()) {
            runs_.push({run.begin, run.end, run.key + 1, 0});
        }
    }

    // Returns whether all rows of a run have the same text. Such runs are common, and comparing
    // further letters would find no difference.
    bool HoldsOneText(const Run& run) const {
        const Cell first = CellOf(places_[run.begin], run.key);
        for (std::size_t i = run.begin + 1; i < run.end; ++i) {
            if (CellOf(places_[i], run.key) != first) return false;
        }
        return true;
    }

    const RowBuffer& rows_;
    const std::vector<dialect::ResultColumn>& columns_;
    std::vector<SortKey> keys_;
    const std::vector<std::uint32_t>& order_;
    std::vector<Place> places_;
    std::stack<Run> runs_; // still to be sorted
};

} // namespace

void Recordset::Sort(std::string_view order) {
    State& state = Opened();
    if (Trim(order).empty()) {
        std::ranges::sort(state.order);
        return state.MoveTo(0);
    }
    std::vector<SortKey> keys;
    for (const SortItem& item : ParseSortText(order)) {
        const auto field = state.Find(item.name);
        if (!field) throw FieldError("There is no field " + std::string(item.name) + ".");
        keys.push_back({*field, item.descending});
    }
    state.WriteOutOrder();
    state.order =
        Sorter(state.rows, state.Compiled().columns, std::move(keys), state.order).Sorted();
    state.MoveTo(0);
}

} // namespace platform
