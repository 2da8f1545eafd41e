#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace reports {

/// The blanks around the key and the value of a line with "=": the catalogue keeps them, so that
/// "DESCRIPTION = x" is not a description there; a run removes them.
enum class Blanks { Keep, Trim };

/// One line of a definition that is neither empty nor a comment.
struct DefinitionLine {
    int number = 0;         ///< counts from 1
    std::string key;        ///< in upper case; a key too long to be one of ours is left empty
    std::string_view name;  ///< the key as it is written
    std::string_view value; ///< what follows the first "=", empty without one

    /// True for "[DATA]" and the like, if `section` is the word between the brackets.
    bool Opens(std::string_view section) const;
};

/// Reads the lines of a definition one after the other. Lines end at CR LF, LF or CR; the last line
/// needs no end. Lines of length 0 and lines whose first character is "#" are skipped.
class LineReader {
  public:
    /// `text` must outlive the reader and the lines it returns.
    LineReader(std::string_view text, Blanks blanks) : rest_(text), blanks_(blanks) {}

    /// The next line; nothing at the end of the text.
    std::optional<DefinitionLine> Next();

  private:
    std::string_view TakeLine();

    std::string_view rest_;
    Blanks blanks_;
    int number_ = 0;
};

/// The text of a definition file as UTF-8: a byte order mark is removed, and a text that is not
/// UTF-8 is read as Windows-1252. Nothing if the file is missing or can't be read.
std::optional<std::string> ReadDefinition(const std::filesystem::path& file);

} // namespace reports
