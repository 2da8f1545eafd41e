#include "dbmender/frmWelcome.h"

#include "platform/qt/Icons.h"
#include "ui_frmWelcome.h"

namespace dbmender {

frmWelcome::frmWelcome(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::frmWelcome>()) {
    ui_->setupUi(this);
    ui_->lblPicture->setPixmap(
        platform::qt::LoadIcon(QStringLiteral("vestrel")).pixmap(ui_->lblPicture->minimumSize()));
    QFont heading = ui_->lblWelcome->font();
    heading.setPointSizeF(heading.pointSizeF() * 1.6);
    ui_->lblWelcome->setFont(heading);
    const auto connectTo = [this](QAbstractButton* button, const char* icon, Beginning beginning) {
        button->setIcon(platform::qt::LoadIcon(QLatin1String(icon)));
        connect(button, &QAbstractButton::clicked, this,
                [this, beginning] { Q_EMIT Chosen(beginning); });
    };
    connectTo(ui_->cmdCreate, "add", Beginning::Create);
    connectTo(ui_->cmdOpen, "open", Beginning::OpenExisting);
    connectTo(ui_->cmdSample, "home", Beginning::Sample);
    connectTo(ui_->cmdRestore, "back", Beginning::Restore);
    connect(ui_->cmdClose, &QPushButton::clicked, this, &QDialog::reject);
}

frmWelcome::~frmWelcome() = default;

} // namespace dbmender
