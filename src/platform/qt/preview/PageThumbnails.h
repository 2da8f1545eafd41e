#pragma once

#include <QListView>
#include <memory>

#include "platform/printing/PrintedDocument.h"
#include "platform/qt/preview/PagePainter.h"

namespace platform::qt {

class ThumbnailModel;

/// Small pictures of a document's pages with their numbers; choosing one emits its page, counted
/// from 0.
class PageThumbnails : public QListView {
    Q_OBJECT

  public:
    explicit PageThumbnails(QWidget* parent = nullptr);
    ~PageThumbnails() override;

    /// Do the same as PagePreview::SetDocument and PagePreview::PagesAdded.
    void SetDocument(const PrintedDocument* document, const FontBook* fonts);
    void PagesAdded();

    /// Selects a page without emitting anything.
    void ShowPage(int page);

    QSize sizeHint() const override { return {150, 400}; }

  Q_SIGNALS:
    void PageChosen(int page);

  protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

  private:
    ThumbnailModel* model_;
    bool quiet_ = false;
};

} // namespace platform::qt
