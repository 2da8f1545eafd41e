#pragma once

#include <QImage>
#include <QWidget>

namespace photoreel {

/// Shows one picture on a dark background, as large as possible, or text.
class PictureCanvas : public QWidget {
    Q_OBJECT

  public:
    explicit PictureCanvas(QWidget* parent = nullptr);

    void ShowPicture(const QImage& picture);
    void ShowText(const QString& text);
    const QImage& Shown() const { return picture_; }
    const QString& Text() const { return text_; }

  Q_SIGNALS:
    /// Emitted by a left click, or by turning the wheel down.
    void NextAsked();
    /// Emitted by a right click, or by turning the wheel up.
    void PreviousAsked();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    QImage picture_;
    QString text_;
    int turned_ = 0; ///< of the wheel, not answered yet
};

} // namespace photoreel
