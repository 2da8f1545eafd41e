#pragma once

#include <QObject>
#include <QThreadPool>

#include "documents/screens/ReadPicture.h"

namespace documents::screens {

/// Reads pictures on a thread of its own, one after the other, so that large ones don't block the
/// window. It uses nothing but the files.
class PictureLoader : public QObject {
    Q_OBJECT

  public:
    explicit PictureLoader(QObject* parent = nullptr);
    ~PictureLoader() override;

    /// Reads a picture; Loaded is emitted from the event loop.
    void Load(const QString& path, QSize bound);
    /// Drops the pictures that haven't been read yet.
    void Forget();

  Q_SIGNALS:
    void Loaded(const QString& path, const documents::screens::PictureRead& picture);

  private:
    QThreadPool reader_;
};

} // namespace documents::screens
