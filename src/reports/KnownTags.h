#pragma once

#include <map>
#include <set>
#include <string>

namespace reports {

/// The tags that something fills in one place of a definition, each with a value to try statements
/// with. Case doesn't matter in their names.
class KnownTags {
  public:
    /// Nothing is filled.
    KnownTags() = default;
    /// The tags of a subtitle and of a loop's query.
    static KnownTags OfRun();
    /// The tags of the texts and statements of sections.
    static KnownTags OfSection();

    void Add(const std::string& name, const std::string& sample);
    bool Has(const std::string& name) const;

    /// The text with each tag's sample in its place.
    std::string Fill(std::string text) const;

    /// The names between two "%" that nobody fills, as they are written. None for a text with LIKE,
    /// in whose patterns "%" matches any characters.
    std::set<std::string> Unfilled(const std::string& text) const;

  private:
    std::map<std::string, std::string> samples_; ///< by names in upper case
};

} // namespace reports
