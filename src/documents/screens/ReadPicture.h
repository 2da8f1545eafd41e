#pragma once

#include <QImage>
#include <QSize>
#include <QString>

namespace documents::screens {

enum class PictureFault { None, Missing, Damaged, TooLarge };

/// A picture, or the reason why there is none.
struct PictureRead {
    QImage image;
    PictureFault fault = PictureFault::None;
};

/// Reads a picture file upright and no larger than `bound`, using memory for about that size if its
/// format allows it, and never more than a fixed amount.
PictureRead ReadPicture(const QString& path, QSize bound);

/// Returns the text shown in place of such a picture.
QString FaultText(PictureFault fault);

} // namespace documents::screens
