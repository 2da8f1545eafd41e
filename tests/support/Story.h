#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

namespace support {

// A story is read from a text file: what the books hold, what happens, and what they hold then.
//
//   # A sentence that says what the story proves.
//   given
//     Field = value              of the room's main record; the other fields are ordinary
//     event
//   when
//     event                      see StoryPlayer.h, and the room's own player, for the events
//       -> answer                a line for each line of the answer; or `event -> answer`
//   then
//     01/15/2024 | ... | ...     the whole ledger, a row a line; `nothing in the ledger`
//     Field = value
//     SELECT ...                 a longer statement goes on in lines that are further indented
//       -> a row, fields separated by '|'
//   each
//     name | other               the story is lived through once for each row, with <name>
//     value | value              replaced by the row's value
//
// Parts follow one another in any order and as often as needed. A comment after a part begins the
// next story of the file.

/// A line of a part and what is expected of it, if anything is.
struct StoryLine {
    std::string text;
    std::vector<std::string> answers;
};

struct StoryPart {
    std::string name; ///< given, when or then
    std::vector<StoryLine> lines;
};

struct Story {
    std::string name; ///< the file's, with a number if the file holds several
    std::string proves;
    std::vector<StoryPart> parts;
};

void PrintTo(const Story& story, std::ostream* out);

/// The stories of all files `*.story` in a folder, by name. Throws std::runtime_error, naming the
/// file, if one is malformed.
std::vector<Story> ReadStories(const std::filesystem::path& folder);

} // namespace support
