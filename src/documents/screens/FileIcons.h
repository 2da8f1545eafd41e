#pragma once

#include <QHash>
#include <QIcon>
#include <QObject>

#include "documents/screens/PictureLoader.h"

namespace documents::screens {

/// The icons of files, each taken once: a picture's is the picture itself as soon as it was read,
/// another file's that of its kind on this desktop, a missing file's says so.
class FileIcons : public QObject {
    Q_OBJECT

  public:
    /// Device pixels that a picture's icon is read at.
    static constexpr QSize kPictureSize{96, 96};

    explicit FileIcons(QObject* parent = nullptr);

    QIcon GetFileIcon(const QString& path, bool isPicture);
    /// Takes all of them anew.
    void Clear();

  Q_SIGNALS:
    /// The icon of a file has become another.
    void Changed(const QString& path);

  private:
    QHash<QString, QIcon> icons_;
    PictureLoader loader_;
};

} // namespace documents::screens
