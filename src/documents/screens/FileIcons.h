#pragma once

#include <QHash>
#include <QIcon>
#include <QObject>

#include "documents/screens/PictureLoader.h"

namespace documents::screens {

/// The icons of files, each created once: for a picture the picture itself as soon as it has been
/// read, for other files the desktop's icon of their type, for a missing file a warning.
class FileIcons : public QObject {
    Q_OBJECT

  public:
    /// The size at which a picture is read, in device pixels.
    static constexpr QSize kPictureSize{96, 96};

    explicit FileIcons(QObject* parent = nullptr);

    QIcon GetFileIcon(const QString& path, bool isPicture);
    /// Forgets all icons, so that they are created again.
    void Clear();

  Q_SIGNALS:
    /// Emitted when the icon of a file has changed.
    void Changed(const QString& path);

  private:
    QHash<QString, QIcon> icons_;
    PictureLoader loader_;
};

} // namespace documents::screens
