#pragma once

#include <memory>
#include <string_view>

namespace platform {

/// The other programs of the desktop that ours hands something to. True when somebody took it.
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

/// The desktop of this process. Without SetDesktop nobody takes anything; null brings that back.
Desktop& TheDesktop();
void SetDesktop(std::unique_ptr<Desktop> desktop);

} // namespace platform
