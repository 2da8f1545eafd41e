#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/dialogs/Desktop.h"

namespace support {

/// Stands for the desktop while it lives: keeps the documents and web pages that it was asked to
/// open, and the addresses of mails after "mail ".
class KeepingDesktop {
  public:
    /// `takes`: whether there is a program for them.
    explicit KeepingDesktop(bool takes = true)
        : opened_(std::make_shared<std::vector<std::string>>()) {
        platform::SetDesktop(std::make_unique<Seam>(opened_, takes));
    }
    ~KeepingDesktop() { platform::SetDesktop(nullptr); }
    KeepingDesktop(const KeepingDesktop&) = delete;
    KeepingDesktop& operator=(const KeepingDesktop&) = delete;
    KeepingDesktop(KeepingDesktop&&) = delete;
    KeepingDesktop& operator=(KeepingDesktop&&) = delete;

    const std::vector<std::string>& Opened() const { return *opened_; }

  private:
    class Seam : public platform::Desktop {
      public:
        Seam(std::shared_ptr<std::vector<std::string>> opened, bool takes)
            : opened_(std::move(opened)), takes_(takes) {}
        bool OpenWebPage(std::string_view address) override { return Keep(address); }
        bool WriteMail(std::string_view address) override {
            return Keep("mail " + std::string(address));
        }
        bool OpenDocument(std::string_view file) override { return Keep(file); }

      private:
        bool Keep(std::string_view opened) {
            opened_->emplace_back(opened);
            return takes_;
        }
        std::shared_ptr<std::vector<std::string>> opened_;
        bool takes_;
    };

    std::shared_ptr<std::vector<std::string>> opened_;
};

} // namespace support
