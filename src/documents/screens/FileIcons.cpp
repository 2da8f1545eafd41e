#include "documents/screens/FileIcons.h"

#include <QFileInfo>
#include <QMimeDatabase>

#include "platform/qt/Icons.h"

namespace documents::screens {

namespace {

QIcon IconOfKind(const QFileInfo& file) {
    // Chosen by the name only: reading the file could take long on a slow disk.
    const QMimeType kind = QMimeDatabase().mimeTypeForFile(file, QMimeDatabase::MatchExtension);
    for (const QString& name : {kind.iconName(), kind.genericIconName()}) {
        if (QIcon::hasThemeIcon(name)) return QIcon::fromTheme(name);
    }
    return platform::qt::LoadIcon(QStringLiteral("file"));
}

/// Keeps the picture's own colours when its line is selected.
QIcon IconOfPicture(const QImage& image) {
    const QPixmap picture = QPixmap::fromImage(image);
    QIcon icon(picture);
    icon.addPixmap(picture, QIcon::Selected);
    return icon;
}

} // namespace

FileIcons::FileIcons(QObject* parent) : QObject(parent) {
    connect(&loader_, &PictureLoader::Loaded, this,
            [this](const QString& path, const PictureRead& picture) {
                if (picture.image.isNull()) return;
                icons_[path] = IconOfPicture(picture.image);
                Q_EMIT Changed(path);
            });
}

QIcon FileIcons::GetFileIcon(const QString& path, bool isPicture) {
    const auto found = icons_.constFind(path);
    if (found != icons_.constEnd()) return *found;
    const QFileInfo file(path);
    QIcon icon;
    if (!file.exists()) {
        icon = platform::qt::LoadIcon(QStringLiteral("missing"));
    } else if (isPicture) {
        icon = platform::qt::LoadIcon(QStringLiteral("picture"));
        loader_.Load(path, kPictureSize);
    } else {
        icon = IconOfKind(file);
    }
    icons_.insert(path, icon);
    return icon;
}

void FileIcons::Clear() {
    loader_.Forget();
    icons_.clear();
}

} // namespace documents::screens
