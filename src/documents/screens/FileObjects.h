#pragma once

#include <QWidget>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "documents/FilePanelSettings.h"

class QAction;
class QMenu;

namespace Ui {
class FileObjects;
}

namespace documents::screens {

class FileListModel;

/// The panel of the files attached to a record: their list, and the picture and properties of the
/// selected one. Files are added from a dialog or by dropping them here. The panel refreshes
/// itself; its settings are stored under its form's name and its own.
class FileObjects : public QWidget {
    Q_OBJECT

  public:
    explicit FileObjects(QWidget* parent = nullptr);
    ~FileObjects() override;

    /// Shows the files of a record; the panel is disabled if the record has no id yet.
    void SetRecord(core::RecordKind dbType, std::int32_t id);
    /// Shows the files of all records instead; files are still added to the record.
    void SetShowAll(bool all);

    /// Reads the list again; the selected file stays selected.
    void Refresh();
    /// Shows the picture and the properties of the selected file again.
    void UpdateFileList();
    /// Selects a file; does nothing if it isn't in the list.
    void ShowFileObject(std::int32_t id);
    /// Returns the selected file's id, 0 if none is selected.
    std::int32_t SelectedId() const;

  protected:
    void showEvent(QShowEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void Connect();
    void MakeOptions();
    void AddFile();
    void AttachFiles(const QStringList& paths);
    void OpenFile();
    void DeleteFile();
    void ShowAvailable();
    void ShowSettings();
    void SaveSettings();
    void SplitMoved();
    std::string StoreName() const;

    std::unique_ptr<Ui::FileObjects> ui_;
    FileListModel* files_;
    QMenu* options_;
    std::vector<std::pair<QAction*, bool FilePanelSettings::*>> flags_;
    core::RecordKind dbType_ = core::kNone;
    std::int32_t id_ = 0;
    bool all_ = false;
    bool isSetUp_ = false;
    FilePanelSettings settings_;
    core::NotifyToken token_;
};

} // namespace documents::screens
