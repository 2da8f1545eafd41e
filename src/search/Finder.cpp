#include "search/Finder.h"

#include <algorithm>
#include <utility>

#include <fmt/core.h>

#include "platform/values/Errors.h"
#include "search/HitOrder.h"
#include "search/SourceRow.h"
#include "search/Words.h"

namespace search {

using platform::DatabaseError;
using platform::TextIndex;

namespace {

/// The newest of so many matches of a group, among which the best are chosen.
constexpr std::size_t kCandidates = 50;
/// The matches of a full group that are skipped one by one before the next group is looked up.
constexpr std::size_t kPassedOver = 10;

} // namespace

struct Finder::Query {
    std::string_view text;
    std::vector<platform::SearchWord> words;
};

Finder::Finder(platform::Connection& books) : books_(books) {}

Finder::~Finder() = default;

std::filesystem::path Finder::IndexFile(const platform::Connection& books) {
    return std::filesystem::path(books.File()).replace_extension(".search");
}

void Finder::SetItems(std::vector<Item> items) {
    items_ = std::move(items);
    itemIndex_ = std::make_unique<TextIndex>();
    itemIndex_->Begin();
    for (std::size_t i = 0; i < items_.size(); ++i) {
        const Item& item = items_[i];
        itemIndex_->Put({.key = static_cast<std::int64_t>(i),
                         .mark = 0,
                         .title = {},
                         .detail = {},
                         .target = {},
                         .words = IndexWords(item.title + ' ' + item.detail + ' ' + item.words)});
    }
    itemIndex_->Commit();
}

void Finder::OpenIndex() {
    if (books_.IsReadOnly()) {
        index_ = std::make_unique<TextIndex>();
        isInMemory_ = true;
        return;
    }
    try {
        index_ = std::make_unique<TextIndex>(IndexFile(books_), kLayout);
    } catch (const DatabaseError& failure) {
        UseMemory(failure);
    }
}

void Finder::UseMemory(const DatabaseError& failure) {
    notice_ = fmt::format(
        "The search index {} can't be used because {}. The search works without it; it only has to "
        "read the books again each time the program starts.",
        IndexFile(books_).string(), TextIndex::ReasonOf(failure));
    index_ = std::make_unique<TextIndex>();
    isInMemory_ = true;
}

bool Finder::IsStale() {
    if (!books_.IsOpen()) return false;
    if (update_) return true;
    try {
        if (!watch_) watch_ = std::make_unique<platform::ChangeWatch>(books_.File());
        nextVersion_ = watch_->Version();
    } catch (const DatabaseError&) {
        nextVersion_.reset(); // the version isn't known, so the books are read
        watch_.reset();
    }
    return !version_ || !nextVersion_ || *version_ != *nextVersion_;
}

bool Finder::Step() {
    if (!update_ && !IsStale()) return true;
    try {
        StepOnce();
    } catch (const DatabaseError& failure) {
        // If the books can't be read, the update hasn't failed.
        Recover(failure);
        return false;
    }
    return !update_;
}

/// Ends the update; the next step begins another one, in a sound index or in memory.
void Finder::Recover(const DatabaseError& failure) {
    update_.reset();
    hasRead_ = false;
    version_.reset();
    if (isInMemory_) throw failure;
    if (!TextIndex::IsDamage(failure) || wasEmptied_) return UseMemory(failure);
    wasEmptied_ = true;
    try {
        index_->Empty();
    } catch (const DatabaseError& again) {
        UseMemory(again);
    }
}

void Finder::StepOnce() {
    if (!index_) OpenIndex();
    if (!update_) update_ = std::make_unique<IndexUpdate>(*index_, books_);
    if (!update_->Step()) return;
    faults_ = update_->Faults();
    update_.reset();
    version_ = nextVersion_;
    hasRead_ = true;
}

void Finder::Abandon() {
    update_.reset();
}

int Finder::Percent() const {
    return update_ ? update_->Percent() : 0;
}

std::string Finder::Notice() const {
    std::string notice = notice_;
    for (const std::string& fault : faults_) {
        if (!notice.empty()) notice += '\n';
        notice += fault;
    }
    return notice;
}

std::vector<HitGroup> Finder::Find(std::string_view text, std::size_t most) {
    try {
        return FindAll(text, most);
    } catch (const DatabaseError& failure) {
        // Step reads the books again.
        Recover(failure);
        return {};
    }
}

std::vector<HitGroup> Finder::FindAll(std::string_view text, std::size_t most) {
    // A typed number is first taken as the whole number: "105" isn't lost among 1050 to 1059.
    std::vector<HitGroup> groups = FindWords({text, QueryWords(text, Numbers::Whole)}, most);
    if (groups.empty() && HasNumber(text))
        groups = FindWords({text, QueryWords(text, Numbers::Beginning)}, most);
    return groups;
}

std::vector<HitGroup> Finder::FindWords(const Query& query, std::size_t most) {
    std::vector<HitGroup> groups;
    if (query.words.empty()) return groups;
    if (hasRead_ && !update_) FindRecords(query, most, groups);
    if (itemIndex_) FindItems(query, most, groups);
    SortGroups(query.text, groups);
    return groups;
}

void Finder::FindRecords(const Query& query, std::size_t most, std::vector<HitGroup>& groups) {
    const TextIndex::View view(*index_);
    const auto words = index_->WrittenOut(query.words);
    if (!words) return;
    const std::size_t candidates = std::max(most, kCandidates);
    std::size_t source = 0;
    HitGroup group;
    const auto close = [&] {
        if (group.hits.empty()) return;
        group.name = Sources()[source].name;
        group.icon = Sources()[source].icon;
        KeepBest(query.text, most, group);
        groups.push_back(std::exchange(group, {}));
    };
    std::int64_t first = 0;
    while (first >= 0) {
        std::size_t passed = 0;
        std::int64_t next = -1;
        index_->Find(*words, first, [&](const TextIndex::Match& match) {
            if (SourceOf(match.key) != source) {
                close();
                source = SourceOf(match.key);
                if (source >= Sources().size()) return false;
                passed = 0;
            }
            if (group.hits.size() <= candidates) {
                if (const auto target = ReadTarget(match.target))
                    group.hits.push_back(
                        {std::string(match.title), std::string(match.detail), target, 0});
                return true;
            }
            if (source + 1 == Sources().size()) return false;
            if (++passed <= kPassedOver) return true;
            next = FirstKey(source + 1);
            return false;
        });
        first = next;
    }
    close();
}

void Finder::FindItems(const Query& query, std::size_t most, std::vector<HitGroup>& groups) {
    std::vector<HitGroup> found;
    itemIndex_->Find(query.words, 0, [&](const TextIndex::Match& match) {
        const auto number = static_cast<std::size_t>(match.key);
        const Item& item = items_[number];
        if (found.empty() || found.back().name != item.group)
            found.push_back({item.group, item.icon, {}, false});
        found.back().hits.push_back({item.title, item.detail, std::nullopt, number});
        return true;
    });
    for (HitGroup& group : found) {
        KeepBest(query.text, most, group);
        groups.push_back(std::move(group));
    }
}

} // namespace search
