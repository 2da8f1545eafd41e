#pragma once

#include <QAbstractScrollArea>
#include <cstdint>
#include <memory>
#include <optional>

#include "platform/printing/PrintedDocument.h"
#include "platform/printing/SearchPages.h"
#include "platform/qt/preview/PagePainter.h"

namespace platform::qt {

/// How large pages are shown.
enum class PageFit : std::uint8_t { None, Width, Page };

/// The pages of a document below each other, as sharp at any size as on paper. Pages count from 0.
class PagePreview : public QAbstractScrollArea {
    Q_OBJECT

  public:
    explicit PagePreview(QWidget* parent = nullptr);
    ~PagePreview() override;

    /// Shows a document from its first page; null shows nothing. The document and its fonts must
    /// outlive the view, or stay valid until the next call.
    void SetDocument(const PrintedDocument* document, const FontBook* fonts);
    /// Called when pages were added to the document.
    void PagesAdded();

    int PageCount() const;
    /// Returns the page that was chosen, until the user scrolls, or else the one in the middle of
    /// the view; -1 if there are no pages.
    int CurrentPage() const;
    void GoToPage(int page);

    PageFit Fit() const { return fit_; }
    void SetFit(PageFit fit);
    /// Returns the zoom in percent of the paper's size.
    double Zoom() const { return zoom_; }
    void SetZoom(double percent);
    void ZoomIn();
    void ZoomOut();

    /// Marks and shows the next or previous occurrence of a text, wrapping around at the ends.
    /// Returns false if there is none; empty text only removes the mark.
    bool Find(const QString& text, SearchDirection direction);

    QSize sizeHint() const override { return {800, 640}; }

  Q_SIGNALS:
    void CurrentPageChanged(int page);
    void ZoomChanged();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

  private:
    double Scale() const;
    QSizeF PageSize() const;
    double PageTop(int page) const;
    QRectF PageRect(int page) const;
    QRectF MatchRect() const;
    void ApplyFit();
    void SetZoomKeepingPlace(double percent);
    void UpdateScrollBars();
    void TellCurrentPage();
    void ShowMatch();
    bool TakeKey(const QKeyEvent& event);

    const PrintedDocument* document_ = nullptr;
    const FontBook* fonts_ = nullptr;
    std::unique_ptr<PagePainter> painter_;
    PageFit fit_ = PageFit::Width;
    double zoom_ = 100;
    int toldPage_ = -1;
    /// Pages that are small enough to be shown together can't all be moved to the middle.
    std::optional<int> chosenPage_;
    std::optional<PageMatch> match_;
    std::optional<QPoint> dragFrom_;
};

} // namespace platform::qt
