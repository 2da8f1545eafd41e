#include "documents/screens/FilesPage.h"

#include <QSignalBlocker>
#include <QTabBar>
#include <QVBoxLayout>
#include <utility>

#include "core/RecordKinds.h"
#include "core/forms/RecordAdditions.h"
#include "documents/screens/FileObjects.h"
#include "platform/qt/Text.h"

namespace documents::screens {

using core::forms::Subject;

namespace {

/// The files of a record, with a tab for each record if the form shows several.
class FilesPage : public QWidget {
  public:
    explicit FilesPage(QWidget& form)
        : QWidget(&form), filesOf_(new QTabBar(this)), files_(new FileObjects(this)) {
        setObjectName(QStringLiteral("tabFiles"));
        filesOf_->setObjectName(QStringLiteral("tabFilesOf"));
        filesOf_->setDrawBase(false);
        filesOf_->setExpanding(false);
        filesOf_->setAccessibleName(tr("Files of"));
        filesOf_->hide();
        files_->setObjectName(QStringLiteral("ucFOB"));
        auto* const layout = new QVBoxLayout(this);
        layout->addWidget(filesOf_);
        layout->addWidget(files_);
        connect(filesOf_, &QTabBar::currentChanged, this, [this] { ShowFiles(); });
    }

    void Show(const std::vector<Subject>& subjects) {
        subjects_ = subjects;
        const QSignalBlocker quiet(filesOf_);
        for (int tab = filesOf_->count(); std::cmp_less(tab, subjects.size()); ++tab) {
            const auto name = core::RecordKindName(subjects[static_cast<std::size_t>(tab)].kind);
            filesOf_->addTab(tr("Of the %1").arg(platform::qt::ToScreen(name)));
        }
        filesOf_->setVisible(filesOf_->count() > 1);
        ShowFiles();
    }

  private:
    void ShowFiles() {
        const auto chosen = static_cast<std::size_t>(filesOf_->currentIndex());
        files_->SetRecord(subjects_[chosen].kind, subjects_[chosen].id);
    }

    QTabBar* filesOf_;
    FileObjects* files_;
    std::vector<Subject> subjects_; ///< in the order of the tabs
};

} // namespace

void RegisterFilesPage() {
    core::forms::RegisterRecordPage(
        "documents.files", {.caption = "Files and Pictures",
                            .kinds = std::vector{core::kAccount, core::kAppliance, core::kBuilding,
                                                 core::kContent, core::kLease, core::kMortgage,
                                                 core::kRoom, core::kTenant, core::kWorkOrder},
                            .make = [](QWidget& form) -> QWidget* { return new FilesPage(form); },
                            .show =
                                [](QWidget& page, const std::vector<Subject>& subjects) {
                                    static_cast<FilesPage&>(page).Show(subjects);
                                }});
}

} // namespace documents::screens
