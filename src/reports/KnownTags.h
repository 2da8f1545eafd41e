#pragma once

#include <map>
#include <set>
#include <string>

namespace reports {

/// The tags that are filled in one place of a definition, each with a sample value to try
/// statements with. Their names ignore case.
class KnownTags {
  public:
    /// Creates an empty set.
    KnownTags() = default;
    /// Returns the tags of a subtitle and of a loop's query.
    static KnownTags OfRun();
    /// Returns the tags of the texts and statements of sections.
    static KnownTags OfSection();

    void Add(const std::string& name, const std::string& sample);
    bool Has(const std::string& name) const;

    /// Returns the text with each tag replaced by its sample.
    std::string Fill(std::string text) const;

    /// Returns the names between two "%" that aren't known, as written. Returns nothing for text
    /// with LIKE, in whose patterns "%" matches any characters.
    std::set<std::string> Unfilled(const std::string& text) const;

  private:
    std::map<std::string, std::string> samples_; ///< by names in upper case
};

} // namespace reports
