#include "documents/screens/FileObjects.h"

#include <QDragEnterEvent>
#include <QHeaderView>
#include <QMenu>
#include <QMimeData>

#include "core/RecordKinds.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/PanelCommand.h"
#include "documents/AttachFile.h"
#include "documents/ShowPictures.h"
#include "documents/screens/FileListModel.h"
#include "platform/dialogs/Desktop.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/qt/Icons.h"
#include "platform/qt/Text.h"
#include "removal/DeleteRecord.h"
#include "ui_FileObjects.h"

namespace documents::screens {

using core::forms::Guarded;
using core::forms::PerformOn;
using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

QStringList LocalFiles(const QMimeData& data) {
    QStringList files;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile()) files << url.toLocalFile();
    }
    return files;
}

} // namespace

FileObjects::FileObjects(QWidget* parent)
    : QWidget(parent),
      ui_(std::make_unique<Ui::FileObjects>()),
      files_(new FileListModel(this)),
      options_(new QMenu(this)),
      token_([this](core::RecordKind kind, std::int16_t, std::int32_t) {
          if (kind == core::kFileObject) Refresh();
      }) {
    ui_->setupUi(this);
    setProperty("panel", true);
    ui_->lvwFile->setModel(files_);
    ui_->cmdAdd->setIcon(platform::qt::LoadIcon(QStringLiteral("add")));
    ui_->cmdOpen->setIcon(platform::qt::LoadIcon(QStringLiteral("open")));
    ui_->cmdDelete->setIcon(platform::qt::LoadIcon(QStringLiteral("delete")));
    ui_->cmdSS->setIcon(platform::qt::LoadIcon(QStringLiteral("show")));
    ui_->cmdOptions->setIcon(platform::qt::LoadIcon(QStringLiteral("settings")));
    ui_->cmdOptions->setMenu(options_);
    MakeOptions();
    Connect();
    ShowSettings();
    Refresh();
}

FileObjects::~FileObjects() = default;

void FileObjects::Connect() {
    connect(ui_->cmdAdd, &QToolButton::clicked, this, &FileObjects::AddFile);
    connect(ui_->cmdOpen, &QToolButton::clicked, this, &FileObjects::OpenFile);
    connect(ui_->cmdDelete, &QToolButton::clicked, this, &FileObjects::DeleteFile);
    connect(ui_->cmdSS, &QToolButton::clicked, this,
            [this] { Guarded([this] { ShowPictures(dbType_, id_); }); });
    connect(ui_->lvwFile, &FileListView::FileChosen, this, &FileObjects::OpenFile);
    connect(ui_->lvwFile, &FileListView::SelectionMoved, this, &FileObjects::UpdateFileList);
    connect(ui_->lvwFile, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        options_->popup(ui_->lvwFile->viewport()->mapToGlobal(at));
    });
    // Queued, since the list is read again while its editor is still closing.
    connect(
        files_, &FileListModel::Described, this,
        [](std::int32_t id, const QString& text) {
            Guarded([&] { DescribeFile(id, FromScreen(text)); });
        },
        Qt::QueuedConnection);
    connect(ui_->picV, &QSplitter::splitterMoved, this, &FileObjects::SplitMoved);
    connect(ui_->picH, &QSplitter::splitterMoved, this, &FileObjects::SplitMoved);
    connect(ui_->lvwFile, &FileListView::AddAsked, ui_->cmdAdd, &QToolButton::click);
    connect(ui_->lvwFile, &FileListView::DeleteAsked, ui_->cmdDelete, &QToolButton::click);
}

void FileObjects::MakeOptions() {
    connect(options_->addAction(tr("Change description")), &QAction::triggered, this,
            [this] { ui_->lvwFile->edit(ui_->lvwFile->currentIndex()); });
    connect(options_->addAction(tr("Refresh")), &QAction::triggered, this, &FileObjects::Refresh);
    options_->addSeparator();
    const auto add = [this](const QString& text, const char* name, bool FilePanelSettings::*flag) {
        QAction* const action = options_->addAction(text);
        action->setObjectName(QLatin1String(name));
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, [this, flag](bool on) {
            settings_.*flag = on;
            ShowSettings();
            SaveSettings();
        });
        flags_.emplace_back(action, flag);
    };
    add(tr("Show paths instead of descriptions"), "mnuShowPath", &FilePanelSettings::ShowPath);
    add(tr("Show icons"), "mnuShowIcons", &FilePanelSettings::ShowIcons);
    add(tr("Accept files that are dropped here"), "mnuAllowDandD", &FilePanelSettings::AllowDandD);
    add(tr("Allow deleting"), "mnuAllowDelete", &FilePanelSettings::AllowDelete);
    add(tr("Remember these settings"), "mnuSaveSettings", &FilePanelSettings::SaveSettings);
}

void FileObjects::SetRecord(core::RecordKind dbType, std::int32_t id) {
    const bool isAnother = dbType != dbType_ || id != id_;
    dbType_ = dbType;
    id_ = id;
    if (isAnother) Refresh();
}

void FileObjects::SetShowAll(bool all) {
    all_ = all;
    Refresh();
}

void FileObjects::Refresh() {
    const std::int32_t selected = SelectedId();
    Guarded([this] {
        if (all_) {
            files_->SetFiles(AllFiles());
        } else {
            files_->SetFiles(id_ == 0 ? std::vector<FileRow>() : FilesOf(dbType_, id_));
        }
    });
    ui_->lvwFile->SetEmptyText(id_ == 0 && !all_
                                   ? tr("Press Apply to save this record first.")
                                   : tr("No files yet. Press Add, or drop files here."));
    ShowFileObject(selected);
    if (!ui_->lvwFile->currentIndex().isValid() && files_->rowCount() > 0) {
        ui_->lvwFile->setCurrentIndex(files_->index(0));
    }
    UpdateFileList();
}

void FileObjects::ShowFileObject(std::int32_t id) {
    const QModelIndex index = files_->IndexOf(id);
    if (!index.isValid()) return;
    ui_->lvwFile->setCurrentIndex(index);
    ui_->lvwFile->scrollTo(index);
}

std::int32_t FileObjects::SelectedId() const {
    const FileRow* const file = files_->FileAt(ui_->lvwFile->currentIndex());
    return file ? file->id : 0;
}

void FileObjects::UpdateFileList() {
    ShowAvailable();
    ui_->lvwProperties->clear();
    const FileRow* const file = files_->FileAt(ui_->lvwFile->currentIndex());
    if (!file) {
        ui_->picPreview->ShowText({});
        return;
    }
    for (const FileProperty& property : PropertiesOf(*file)) {
        auto* const line = new QTreeWidgetItem(ui_->lvwProperties);
        line->setText(0, ToScreen(property.item));
        line->setText(1, ToScreen(property.value));
        line->setToolTip(1, line->text(1));
    }
    ui_->lvwProperties->resizeColumnToContents(0);
    if (file->isPicture) {
        ui_->picPreview->ShowPicture(ToScreen(file->path));
    } else {
        ui_->picPreview->ShowText(tr("No picture"));
    }
}

void FileObjects::ShowAvailable() {
    const bool hasFile = SelectedId() != 0;
    ui_->cmdAdd->setEnabled(id_ != 0);
    ui_->cmdSS->setEnabled(id_ != 0);
    ui_->cmdOpen->setEnabled(hasFile);
    ui_->cmdDelete->setEnabled(hasFile && settings_.AllowDelete);
}

void FileObjects::AddFile() {
    AttachFiles({QString()});
}

/// AttachFile asks for a path if it is empty.
void FileObjects::AttachFiles(const QStringList& paths) {
    bool attached = false;
    PerformOn(*this, [&] {
        for (const QString& each : paths) {
            std::string path = FromScreen(each);
            if (AttachFile(dbType_, id_, path)) attached = true;
        }
    });
    if (attached) ui_->lvwFile->setCurrentIndex(files_->index(files_->rowCount() - 1));
}

void FileObjects::OpenFile() {
    const FileRow* const file = files_->FileAt(ui_->lvwFile->currentIndex());
    if (!file || platform::TheDesktop().OpenDocument(file->path)) return;
    platform::TheDialogs().ShowMessage("Error", "This file can't be opened:\n" + file->path,
                                       platform::Icon::Exclamation);
}

void FileObjects::DeleteFile() {
    const std::int32_t id = SelectedId();
    if (id == 0 || !ui_->cmdDelete->isEnabled()) return;
    PerformOn(*this, [id] { removal::DeleteRecord(core::kFileObject, id); });
}

void FileObjects::dragEnterEvent(QDragEnterEvent* event) {
    if (settings_.AllowDandD && id_ != 0 && !LocalFiles(*event->mimeData()).isEmpty()) {
        event->setDropAction(Qt::LinkAction);
        event->accept();
    }
}

void FileObjects::dropEvent(QDropEvent* event) {
    const QStringList files = LocalFiles(*event->mimeData());
    // The file isn't moved, and the program it was dragged from must not think so.
    event->setDropAction(Qt::LinkAction);
    event->accept();
    // That program waits until this event has been handled, so any questions come after it.
    QMetaObject::invokeMethod(
        this, [this, files] { AttachFiles(files); }, Qt::QueuedConnection);
}

void FileObjects::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (isSetUp_) return;
    isSetUp_ = true;
    settings_ = LoadFilePanelSettings(StoreName());
    constexpr int kWhole = 1000;
    const auto split = [](QSplitter& splitter, double share) {
        const int first = static_cast<int>(share * kWhole);
        splitter.setSizes({first, kWhole - first});
        splitter.setStretchFactor(0, first);
        splitter.setStretchFactor(1, kWhole - first);
    };
    split(*ui_->picV, settings_.vSplit);
    split(*ui_->picH, settings_.hSplit);
    ShowSettings();
}

void FileObjects::SplitMoved() {
    const auto share = [](const QSplitter& splitter) {
        const QList<int> sizes = splitter.sizes();
        return static_cast<double>(sizes[0]) / std::max(1, sizes[0] + sizes[1]);
    };
    settings_.vSplit = share(*ui_->picV);
    settings_.hSplit = share(*ui_->picH);
    SaveSettings();
}

void FileObjects::ShowSettings() {
    files_->SetLook({settings_.ShowPath, settings_.ShowIcons});
    for (const auto& [action, flag] : flags_)
        action->setChecked(settings_.*flag);
    setAcceptDrops(settings_.AllowDandD);
    ShowAvailable();
}

void FileObjects::SaveSettings() {
    SaveFilePanelSettings(StoreName(), settings_);
}

std::string FileObjects::StoreName() const {
    return FromScreen(window()->objectName() + QLatin1Char('.') + objectName());
}

} // namespace documents::screens
