#include "shell/screens/frmSplash.h"

#include <QCoreApplication>
#include <QScreen>

#include "platform/qt/Icons.h"
#include "shell/screens/Version.h"
#include "ui_frmSplash.h"

namespace shell::screens {

frmSplash::frmSplash()
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint),
      ui_(std::make_unique<Ui::frmSplash>()) {
    ui_->setupUi(this);
    ui_->lblPicture->setPixmap(
        platform::qt::LoadIcon(QStringLiteral("vestrel")).pixmap(ui_->lblPicture->minimumSize()));
    ui_->lblVersion->setText(VersionText());
}

frmSplash::~frmSplash() = default;

void frmSplash::Setup() {
    adjustSize();
    if (const QScreen* const where = screen()) {
        move(where->availableGeometry().center() - rect().center());
    }
    show();
    repaint();
    // The window system must show it before the program is busy.
    QCoreApplication::processEvents();
}

} // namespace shell::screens
