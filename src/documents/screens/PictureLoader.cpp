#include "documents/screens/PictureLoader.h"

namespace documents::screens {

PictureLoader::PictureLoader(QObject* parent) : QObject(parent) {
    reader_.setMaxThreadCount(1);
}

PictureLoader::~PictureLoader() {
    Forget();
    reader_.waitForDone();
}

void PictureLoader::Load(const QString& path, QSize bound) {
    reader_.start([this, path, bound] {
        const PictureRead picture = ReadPicture(path, bound);
        QMetaObject::invokeMethod(
            this, [this, path, picture] { Q_EMIT Loaded(path, picture); }, Qt::QueuedConnection);
    });
}

void PictureLoader::Forget() {
    reader_.clear();
}

} // namespace documents::screens
