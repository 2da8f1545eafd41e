#include "shell/screens/frmAbout.h"

#include <QApplication>
#include <QClipboard>
#include <QPushButton>
#include <QSysInfo>

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
    connect(ui_->cmdCopy, &QPushButton::clicked, this,
            [this] { QApplication::clipboard()->setText(Text()); });
    connect(ui_->cmdOk, &QPushButton::clicked, this, &QWidget::close);
}

frmAbout::~frmAbout() = default;

QString frmAbout::Text() const {
    return ui_->lblName->text() + ui_->lblVersion->text() + QLatin1Char('\n') +
           ui_->lblLine->text() + QLatin1Char('\n') +
           tr("Qt %1, %2").arg(QString::fromLatin1(qVersion()), QSysInfo::prettyProductName()) +
           QLatin1Char('\n');
}

void frmAbout::Setup() {
    Open();
}

} // namespace shell::screens
