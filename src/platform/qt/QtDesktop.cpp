#include <QDesktopServices>
#include <QUrl>

#include "platform/qt/QtDialogs.h"
#include "platform/qt/Text.h"

namespace platform::qt {

namespace {

class DesktopOfTheMachine : public Desktop {
  public:
    bool OpenWebPage(std::string_view address) override {
        return QDesktopServices::openUrl(QUrl::fromUserInput(ToScreen(address)));
    }
    bool WriteMail(std::string_view address) override {
        QUrl url;
        url.setScheme(QStringLiteral("mailto"));
        url.setPath(ToScreen(address));
        return QDesktopServices::openUrl(url);
    }
    bool OpenDocument(std::string_view file) override {
        return QDesktopServices::openUrl(QUrl::fromLocalFile(ToScreen(file)));
    }
};

} // namespace

std::unique_ptr<Desktop> MakeDesktop() {
    return std::make_unique<DesktopOfTheMachine>();
}

} // namespace platform::qt
