#pragma once

#include <memory>
#include <string_view>

namespace platform {

/// Passes pages, mail and files to other programs of the desktop. Each function returns true if a
/// program took it.
class Desktop {
  public:
    virtual ~Desktop() = default;

    /// Shows a page in the browser; an address without a scheme counts as a web address.
    virtual bool OpenWebPage(std::string_view address) = 0;
    /// Starts a mail to an address.
    virtual bool WriteMail(std::string_view address) = 0;
    /// Opens a file with the program that is made for its kind.
    virtual bool OpenDocument(std::string_view file) = 0;
};

/// Returns the desktop of this process. Without SetDesktop no program takes anything; setting null
/// restores that.
Desktop& TheDesktop();
void SetDesktop(std::unique_ptr<Desktop> desktop);

} // namespace platform
