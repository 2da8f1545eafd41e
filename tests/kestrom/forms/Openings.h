#pragma once

#include <functional>
#include <set>
#include <string>
#include <vector>

#include "kestrom/screens/SampleEditors.h"

namespace tests {

/// A form and how it is opened.
struct Opening {
    std::string name;
    std::function<void()> open;
};

/// Books of a sample portfolio, and every form that can be opened on them.
class EveryForm : public SampleEditors {
  protected:
    static std::vector<Opening> Openings();
    /// Returns the names of the forms that the program's sources define.
    static std::set<std::string> FormsOfTheProgram();

  private:
    static std::int32_t Id(const char* sql) { return std::stoi(Ask(sql)); }
};

} // namespace tests
