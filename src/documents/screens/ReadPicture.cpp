#include "documents/screens/ReadPicture.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QImageReader>
#include <mutex>

namespace documents::screens {

namespace {

// Some formats are decoded completely before they are scaled down.
constexpr int kMostMegabytes = 256;
constexpr qint64 kMostPixels = 300'000'000;

/// Sets the limit for the whole process, because pictures are read on several threads.
void LimitMemory() {
    static std::once_flag once;
    std::call_once(once, [] { QImageReader::setAllocationLimit(kMostMegabytes); });
}

/// Returns the size to read at: the picture's own, scaled down to the bound if necessary.
QSize ReadSize(const QImageReader& reader, QSize own, QSize bound) {
    if (reader.transformation() & QImageIOHandler::TransformationRotate90) bound.transpose();
    if (own.width() <= bound.width() && own.height() <= bound.height()) return own;
    return own.scaled(bound, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

} // namespace

PictureRead ReadPicture(const QString& path, QSize bound) {
    // Reading anything but a file (a pipe, say) might never end.
    if (!QFileInfo(path).isFile()) return {{}, PictureFault::Missing};
    QImageReader reader(path);
    LimitMemory();
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QSize own = reader.size();
    if (own.isValid()) {
        if (qint64{own.width()} * own.height() > kMostPixels) return {{}, PictureFault::TooLarge};
        reader.setScaledSize(ReadSize(reader, own, bound));
    }
    QImage image = reader.read();
    if (image.isNull()) return {{}, PictureFault::Damaged};
    if (image.width() > bound.width() || image.height() > bound.height()) {
        image = image.scaled(bound, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }
    return {image, PictureFault::None};
}

QString FaultText(PictureFault fault) {
    switch (fault) {
        case PictureFault::Missing:
            return QCoreApplication::translate("Picture", "This file isn't there any more.");
        case PictureFault::Damaged:
            return QCoreApplication::translate("Picture", "This picture can't be shown.");
        case PictureFault::TooLarge:
            return QCoreApplication::translate("Picture", "This picture is too large to show.");
        case PictureFault::None:
            break;
    }
    return {};
}

} // namespace documents::screens
