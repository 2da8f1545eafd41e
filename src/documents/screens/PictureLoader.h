#pragma once

#include <QObject>
#include <QThreadPool>

#include "documents/screens/ReadPicture.h"

namespace documents::screens {

/// Reads pictures behind the screen's back, one after the other, so that large ones don't hold it
/// up. It touches nothing but their files.
class PictureLoader : public QObject {
    Q_OBJECT

  public:
    explicit PictureLoader(QObject* parent = nullptr);
    ~PictureLoader() override;

    /// Reads a picture; Loaded follows from the event loop.
    void Load(const QString& path, QSize bound);
    /// Gives up what waits to be read.
    void Forget();

  Q_SIGNALS:
    void Loaded(const QString& path, const documents::screens::PictureRead& picture);

  private:
    QThreadPool reader_;
};

} // namespace documents::screens
