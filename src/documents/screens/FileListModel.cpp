#include "documents/screens/FileListModel.h"

#include "platform/qt/Text.h"

namespace documents::screens {

using platform::qt::ToScreen;

FileListModel::FileListModel(QObject* parent) : QAbstractListModel(parent) {
    connect(&icons_, &FileIcons::Changed, this, &FileListModel::IconChanged);
}

void FileListModel::SetFiles(std::vector<FileRow> files) {
    beginResetModel();
    icons_.Clear();
    files_ = std::move(files);
    endResetModel();
}

void FileListModel::SetLook(FileLook look) {
    look_ = look;
    if (!files_.empty()) Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

const FileRow* FileListModel::FileAt(const QModelIndex& index) const {
    const auto row = static_cast<std::size_t>(index.row());
    return index.isValid() && row < files_.size() ? &files_[row] : nullptr;
}

QModelIndex FileListModel::IndexOf(std::int32_t id) const {
    for (int row = 0; row < rowCount(); ++row) {
        if (files_[static_cast<std::size_t>(row)].id == id) return index(row);
    }
    return {};
}

int FileListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(files_.size());
}

QVariant FileListModel::data(const QModelIndex& index, int role) const {
    const FileRow* const file = FileAt(index);
    if (!file) return {};
    switch (role) {
        case Qt::DisplayRole:
            return ToScreen(look_.path ? file->path : file->description);
        case Qt::EditRole:
            return ToScreen(file->description);
        case Qt::ToolTipRole:
            return ToScreen(file->path);
        case Qt::DecorationRole:
            if (!look_.icon) return {};
            return icons_.GetFileIcon(ToScreen(file->path), file->isPicture);
        default:
            return {};
    }
}

Qt::ItemFlags FileListModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
    if (!look_.path) flags |= Qt::ItemIsEditable;
    return index.isValid() ? flags : Qt::NoItemFlags;
}

bool FileListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    const FileRow* const file = FileAt(index);
    if (!file || role != Qt::EditRole || value.toString() == ToScreen(file->description)) {
        return false;
    }
    Q_EMIT Described(file->id, value.toString());
    return true;
}

void FileListModel::IconChanged(const QString& path) {
    for (int row = 0; row < rowCount(); ++row) {
        if (ToScreen(files_[static_cast<std::size_t>(row)].path) != path) continue;
        Q_EMIT dataChanged(index(row), index(row), {Qt::DecorationRole});
    }
}

} // namespace documents::screens
