#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace reports {

/// Whether blanks around the key and the value of a line with "=" are kept: the catalogue keeps
/// them, so "DESCRIPTION = x" is not a description there; a run trims them.
enum class Blanks { Keep, Trim };

/// A line of a definition that is neither empty nor a comment.
struct DefinitionLine {
    int number = 0;         ///< counts from 1
    std::string key;        ///< in upper case; a key too long to be one of ours is left empty
    std::string_view name;  ///< the key as it is written
    std::string_view value; ///< what follows the first "=", empty without one

    /// Returns true if the line is "[DATA]" or the like, and `section` is the word between its
    /// brackets.
    bool Opens(std::string_view section) const;
};

/// Reads the lines of a definition one after the other. Lines end at CR LF, LF or CR; the last line
/// needs no end. Lines of length 0 and lines whose first character is "#" are skipped.
class LineReader {
  public:
    /// `text` must outlive the reader and the lines it returns.
    LineReader(std::string_view text, Blanks blanks) : rest_(text), blanks_(blanks) {}

    /// Returns the next line; nothing at the end of the text.
    std::optional<DefinitionLine> Next();

  private:
    std::string_view TakeLine();

    std::string_view rest_;
    Blanks blanks_;
    int number_ = 0;
};

/// Returns the text of a definition file as UTF-8: a byte order mark is removed, and text that is
/// not UTF-8 is read as Windows-1252. Returns nothing if the file is missing or can't be read.
std::optional<std::string> ReadDefinition(const std::filesystem::path& file);

} // namespace reports
