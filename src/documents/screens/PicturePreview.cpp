#include "documents/screens/PicturePreview.h"

#include <QPainter>

namespace documents::screens {

namespace {

constexpr QSize kLargest{1000, 800}; // device pixels; larger than the panel ever gets
constexpr int kMargin = 6;

} // namespace

PicturePreview::PicturePreview(QWidget* parent) : QWidget(parent) {
    connect(&loader_, &PictureLoader::Loaded, this,
            [this](const QString& path, const PictureRead& picture) {
                if (path != path_) return;
                image_ = picture.image;
                text_ = FaultText(picture.fault);
                setAccessibleDescription(text_);
                update();
            });
}

void PicturePreview::ShowPicture(const QString& path) {
    ShowText({});
    path_ = path;
    loader_.Load(path, kLargest);
}

void PicturePreview::ShowText(const QString& text) {
    loader_.Forget();
    path_.clear();
    image_ = {};
    text_ = text;
    setAccessibleDescription(text_);
    update();
}

QSize PicturePreview::sizeHint() const {
    return {280, 180};
}

QSize PicturePreview::minimumSizeHint() const {
    return {120, 70};
}

void PicturePreview::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QRect room = rect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    if (image_.isNull()) {
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, text_);
        return;
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    QSize shown = image_.size() / devicePixelRatioF();
    if (shown.width() > room.width() || shown.height() > room.height()) {
        shown.scale(room.size(), Qt::KeepAspectRatio);
    }
    QRect place(QPoint(0, 0), shown);
    place.moveCenter(room.center());
    painter.drawImage(place, image_);
}

} // namespace documents::screens
