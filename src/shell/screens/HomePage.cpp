#include "shell/screens/HomePage.h"

#include <QToolButton>
#include <QVBoxLayout>
#include <exception>

#include <fmt/core.h>

#include "alerts/screens/Alerts.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/qt/Icons.h"
#include "platform/qt/Text.h"
#include "platform/system/Paths.h"
#include "shell/screens/frmPosted.h"

namespace shell::screens {

namespace {

/// Where notes go that can't be written beside their database.
std::filesystem::path RescueFile() {
    return platform::DataHome() / "Vestrel" / "Notes that were not saved.txt";
}

} // namespace

HomePage::HomePage(QWidget* parent)
    : QWidget(parent), posted_(new QToolButton(this)), alerts_(new alerts::screens::Alerts(this)) {
    alerts_->setObjectName(QStringLiteral("ucAlerts"));
    posted_->setObjectName(QStringLiteral("btnPosted"));
    posted_->setIcon(platform::qt::LoadIcon(QStringLiteral("calendar")));
    posted_->setToolTip(tr("Shows the rows that were posted while you were away"));
    posted_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    posted_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    posted_->setFocusPolicy(Qt::StrongFocus);
    posted_->hide();
    auto* const rows = new QVBoxLayout(this);
    rows->addWidget(posted_);
    rows->addWidget(alerts_, 1);
    connect(posted_, &QToolButton::clicked, this, [this] {
        if (digest_ != nullptr) (new frmPosted)->Setup(*digest_);
    });
}

void HomePage::BindWizards(QAction& lease, QAction& mortgage) {
    alerts_->BindItem(QStringLiteral("WIZ_LEASE"), lease);
    alerts_->BindItem(QStringLiteral("WIZ_MORTGAGE"), mortgage);
}

void HomePage::Refresh() {
    alerts_->Refresh();
}

bool HomePage::AskToClose() {
    try {
        alerts_->SaveNotes();
        return true;
    } catch (const std::exception& failure) {
        return platform::TheDialogs().AskYesNo(
            "Notes",
            fmt::format("{}\n\nClose all the same? The notes will then be kept in\n{}",
                        failure.what(), RescueFile().string()),
            platform::Icon::Exclamation);
    }
}

void HomePage::SaveNotesOrRescue() {
    try {
        alerts_->SaveNotes();
    } catch (const std::exception&) {
        std::filesystem::create_directories(RescueFile().parent_path());
        platform::WriteFileAtomically(RescueFile(), alerts_->NotesText());
    }
}

void HomePage::ShowDigest(const RunDigest& digest) {
    digest_ = &digest;
    QString line = platform::qt::ToScreen(digest.Line());
    const QString faults = platform::qt::ToScreen(digest.FaultLine());
    if (!line.isEmpty() && !faults.isEmpty()) line += QStringLiteral("; ");
    line += faults;
    posted_->setText(line.replace(QLatin1Char('&'), QLatin1String("&&")));
    posted_->setAccessibleName(line);
    posted_->setVisible(!line.isEmpty());
}

} // namespace shell::screens
