#pragma once

#include <QAbstractListModel>
#include <vector>

#include "documents/FileRows.h"
#include "documents/screens/FileIcons.h"

namespace documents::screens {

/// The parts of a file that its line in the list shows.
struct FileLook {
    bool path = false; ///< instead of the description
    bool icon = true;
};

/// The files of a record as lines of a list with editable descriptions.
class FileListModel : public QAbstractListModel {
    Q_OBJECT

  public:
    explicit FileListModel(QObject* parent = nullptr);

    void SetFiles(std::vector<FileRow> files);
    void SetLook(FileLook look);

    /// Returns null for an index outside the list.
    const FileRow* FileAt(const QModelIndex& index) const;
    /// Returns an invalid index if the file isn't in the list.
    QModelIndex IndexOf(std::int32_t id) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

  Q_SIGNALS:
    /// Emitted when the user has edited a description.
    void Described(std::int32_t id, const QString& description);

  private:
    void IconChanged(const QString& path);

    std::vector<FileRow> files_;
    FileLook look_;
    mutable FileIcons icons_; // an icon is taken when it is first painted
};

} // namespace documents::screens
