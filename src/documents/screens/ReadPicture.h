#pragma once

#include <QImage>
#include <QSize>
#include <QString>

namespace documents::screens {

enum class PictureFault { None, Missing, Damaged, TooLarge };

/// A picture, or why there is none.
struct PictureRead {
    QImage image;
    PictureFault fault = PictureFault::None;
};

/// Reads a picture file upright and no larger than `bound`, in the memory of about that size where
/// its format allows, and never in more than a fixed amount.
PictureRead ReadPicture(const QString& path, QSize bound);

/// What is said in the place of such a picture.
QString FaultText(PictureFault fault);

} // namespace documents::screens
