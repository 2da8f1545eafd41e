#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace core {

struct Choice {
    std::string text;
    std::int32_t id = 0;

    friend bool operator==(const Choice&, const Choice&) = default;
};

/// The contents of a drop-down list: rows of a text and an identifier, the selected row, and the
/// text in its box, which the user may have typed.
class ChoiceList {
  public:
    const std::vector<Choice>& Rows() const { return rows_; }
    /// Returns the index of the selected row.
    std::optional<std::size_t> Selected() const { return selected_; }
    const std::string& Text() const { return text_; }

    void Add(std::string_view text, std::int32_t id);
    /// Removes the rows, the selection and the text.
    void Clear();
    /// Selects a row and puts its text into the box; does nothing if there is no such row.
    void Select(std::size_t row);
    /// Puts a text into the box, and drops the selection unless it is the selected row's own text.
    void SetText(std::string_view text);

  private:
    std::vector<Choice> rows_;
    std::optional<std::size_t> selected_;
    std::string text_;
};

} // namespace core
