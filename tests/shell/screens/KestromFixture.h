#pragma once

#include <memory>
#include <vector>

#include "shell/screens/frmKestrom.h"
#include "support/screens/Screens.h"

class QAction;

namespace tests {

/// The main window on books with a few records of each kind, and a log of what it asked for.
class KestromTest : public support::ScreenTest {
  protected:
    KestromTest();
    ~KestromTest() override;

    /// The window, opened on its home page when it is first asked for.
    shell::screens::frmKestrom& Window();
    /// Closes the window and opens another on the same books.
    void Reopen();
    /// Clicks a category of the tool bar by its tag.
    void Go(const char* tag);
    core::grid::Grid& Grid();
    QAction& Item(const char* name);
    std::string Status();
    void ClickCaption(const char* caption);
    /// The column under a caption as it shows, a line each.
    std::string Column(const char* caption);

    shell::screens::WindowServices services_;
    /// "kind id" of each record that was opened, "item kind id" of each command, and the steps of
    /// the end.
    std::vector<std::string> log_;

  private:
    std::unique_ptr<shell::screens::frmKestrom> window_;
};

} // namespace tests
