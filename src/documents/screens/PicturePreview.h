#pragma once

#include <QWidget>

#include "documents/screens/PictureLoader.h"

namespace documents::screens {

/// Shows one picture as large as possible, or the reason why it can't be shown.
class PicturePreview : public QWidget {
    Q_OBJECT

  public:
    explicit PicturePreview(QWidget* parent = nullptr);

    /// Reads and shows a picture.
    void ShowPicture(const QString& path);
    /// Shows text instead.
    void ShowText(const QString& text);

    /// Returns null while no picture is shown.
    const QImage& Shown() const { return image_; }
    const QString& Text() const { return text_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QString path_; ///< of the picture that shows, or is being read
    QImage image_;
    QString text_;
    PictureLoader loader_;
};

} // namespace documents::screens
