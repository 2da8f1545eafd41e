#include "core/screens/frmAbout.h"

#include <QPushButton>

#include "core/screens/Version.h"
#include "platform/qt/Icons.h"
#include "ui_frmAbout.h"

namespace core::screens {

frmAbout::frmAbout(QWidget* parent)
    : Form(parent, FormSizing::Fixed), ui_(std::make_unique<Ui::frmAbout>()) {
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

} // namespace core::screens
