#include "photoreel/PictureCanvas.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

namespace photoreel {

namespace {

constexpr QColor kGround{0x18, 0x18, 0x18};
constexpr QColor kInk{0xE8, 0xE8, 0xE8};
constexpr int kLargestEnlargement = 2;
constexpr int kMargin = 20;
constexpr int kWheelStep = 120;

} // namespace

PictureCanvas::PictureCanvas(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void PictureCanvas::ShowPicture(const QImage& picture) {
    picture_ = picture;
    text_.clear();
    update();
}

void PictureCanvas::ShowText(const QString& text) {
    picture_ = {};
    text_ = text;
    update();
}

void PictureCanvas::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), kGround);
    if (picture_.isNull()) {
        painter.setPen(kInk);
        painter.drawText(rect().adjusted(kMargin, kMargin, -kMargin, -kMargin),
                         Qt::AlignCenter | Qt::TextWordWrap, text_);
        return;
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QSize largest = picture_.size() * kLargestEnlargement;
    const QSize room = size().boundedTo(largest);
    QRect place(QPoint(0, 0), picture_.size().scaled(room, Qt::KeepAspectRatio));
    place.moveCenter(rect().center());
    painter.drawImage(place, picture_);
}

void PictureCanvas::mouseReleaseEvent(QMouseEvent* event) {
    if (!rect().contains(event->pos())) return;
    if (event->button() == Qt::LeftButton) Q_EMIT NextAsked();
    if (event->button() == Qt::RightButton) Q_EMIT PreviousAsked();
}

void PictureCanvas::wheelEvent(QWheelEvent* event) {
    turned_ += event->angleDelta().y();
    for (; turned_ <= -kWheelStep; turned_ += kWheelStep)
        Q_EMIT NextAsked();
    for (; turned_ >= kWheelStep; turned_ -= kWheelStep)
        Q_EMIT PreviousAsked();
    event->accept();
}

} // namespace photoreel
