#include "shell/screens/frmAbout.h"

#include <QPushButton>

#include "platform/qt/Icons.h"
#include "shell/screens/Version.h"
#include "ui_frmAbout.h"

namespace shell::screens {

frmAbout::frmAbout(QWidget* parent)
    : core::forms::Form(parent, core::FormSizing::Fixed), ui_(std::make_unique<Ui::frmAbout>()) {
    ui_->setupUi(this);
    ui_->lblPicture->setPixmap(
        platform::qt::LoadIcon(QStringLiteral("vestrel")).pixmap(ui_->lblPicture->minimumSize()));
    ui_->lblVersion->setText(VersionText());
    connect(ui_->cmdOk, &QPushButton::clicked, this, &QWidget::close);
}

frmAbout::~frmAbout() = default;

void frmAbout::Setup() {
    Open();
}

} // namespace shell::screens
