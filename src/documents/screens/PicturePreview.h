#pragma once

#include <QWidget>

#include "documents/screens/PictureLoader.h"

namespace documents::screens {

/// Shows one picture as large as there is room, or says why there is none.
class PicturePreview : public QWidget {
    Q_OBJECT

  public:
    explicit PicturePreview(QWidget* parent = nullptr);

    /// Reads and shows a picture.
    void ShowPicture(const QString& path);
    /// Shows a text instead.
    void ShowText(const QString& text);

    /// Null while no picture shows.
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
