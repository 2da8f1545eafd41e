#include "platform/qt/preview/PagePreview.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <array>
#include <cmath>

#include "platform/qt/Text.h"

namespace platform::qt {

namespace {

constexpr double kGap = 14; // around pages
constexpr double kLeastZoom = 10;
constexpr double kMostZoom = 800;
constexpr std::array<double, 14> kZoomSteps = {10,  25,  33,  50,  67,  75,  100,
                                               125, 150, 200, 300, 400, 600, 800};

} // namespace

PagePreview::PagePreview(QWidget* parent) : QAbstractScrollArea(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Pages of the report"));
    viewport()->setCursor(Qt::OpenHandCursor);
    // Fitting to the width would otherwise alternate with the bar.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

PagePreview::~PagePreview() = default;

void PagePreview::SetDocument(const PrintedDocument* document, const FontBook* fonts) {
    document_ = document;
    fonts_ = fonts;
    painter_ = fonts ? std::make_unique<PagePainter>(*fonts) : nullptr;
    match_.reset();
    toldPage_ = -1;
    chosenPage_.reset();
    verticalScrollBar()->setValue(0);
    PagesAdded();
}

void PagePreview::PagesAdded() {
    ApplyFit();
    UpdateScrollBars();
    viewport()->update();
    TellCurrentPage();
}

int PagePreview::PageCount() const {
    return document_ ? static_cast<int>(document_->PageCount()) : 0;
}

double PagePreview::Scale() const {
    return zoom_ / 100 * logicalDpiX() / kTwipsPerInch;
}

/// All pages of a document have one size.
QSizeF PagePreview::PageSize() const {
    if (PageCount() == 0) return {};
    const PageSetup& setup = document_->Info().setup;
    return QSizeF(setup.PageWidth(), setup.PageHeight()) * Scale();
}

double PagePreview::PageTop(int page) const {
    return kGap + page * (PageSize().height() + kGap);
}

/// Returns the place of a page in the view.
QRectF PagePreview::PageRect(int page) const {
    const QSizeF size = PageSize();
    const double room = viewport()->width();
    const double left = std::max((room - size.width()) / 2, kGap) - horizontalScrollBar()->value();
    return {QPointF(left, PageTop(page) - verticalScrollBar()->value()), size};
}

int PagePreview::CurrentPage() const {
    if (PageCount() == 0) return -1;
    if (chosenPage_ && *chosenPage_ < PageCount()) return *chosenPage_;
    const double middle = verticalScrollBar()->value() + viewport()->height() / 2.0;
    const int page = static_cast<int>((middle - kGap / 2) / (PageSize().height() + kGap));
    return std::clamp(page, 0, PageCount() - 1);
}

void PagePreview::GoToPage(int page) {
    if (PageCount() == 0) return;
    page = std::clamp(page, 0, PageCount() - 1);
    // A page smaller than the view is centred.
    const double spare = std::max(viewport()->height() - PageSize().height(), 2 * kGap) / 2;
    verticalScrollBar()->setValue(static_cast<int>(std::lround(PageTop(page) - spare)));
    chosenPage_ = page;
    TellCurrentPage();
}

void PagePreview::SetFit(PageFit fit) {
    fit_ = fit;
    ApplyFit();
    Q_EMIT ZoomChanged();
}

void PagePreview::SetZoom(double percent) {
    fit_ = PageFit::None;
    SetZoomKeepingPlace(percent);
    Q_EMIT ZoomChanged();
}

void PagePreview::ZoomIn() {
    const auto step = std::ranges::upper_bound(kZoomSteps, zoom_ + 0.5);
    SetZoom(step == kZoomSteps.end() ? kMostZoom : *step);
}

void PagePreview::ZoomOut() {
    const auto step = std::ranges::lower_bound(kZoomSteps, zoom_ - 0.5);
    SetZoom(step == kZoomSteps.begin() ? kLeastZoom : *(step - 1));
}

void PagePreview::ApplyFit() {
    if (fit_ == PageFit::None || PageCount() == 0) return;
    const PageSetup& setup = document_->Info().setup;
    const double perTwip = logicalDpiX() / double(kTwipsPerInch);
    double factor = (viewport()->width() - 2 * kGap) / (setup.PageWidth() * perTwip);
    if (fit_ == PageFit::Page) {
        factor =
            std::min(factor, (viewport()->height() - 2 * kGap) / (setup.PageHeight() * perTwip));
    }
    SetZoomKeepingPlace(factor * 100);
}

void PagePreview::SetZoomKeepingPlace(double percent) {
    percent = std::clamp(percent, kLeastZoom, kMostZoom);
    if (std::abs(percent - zoom_) < 0.01) return UpdateScrollBars();
    chosenPage_.reset();
    const double height = PageSize().height() + kGap;
    const double place = height > kGap ? (verticalScrollBar()->value() - kGap) / height : 0;
    const bool atTop = verticalScrollBar()->value() == 0;
    zoom_ = percent;
    UpdateScrollBars();
    const double top = kGap + place * (PageSize().height() + kGap);
    if (!atTop) verticalScrollBar()->setValue(static_cast<int>(std::lround(top)));
    viewport()->update();
    TellCurrentPage();
}

void PagePreview::UpdateScrollBars() {
    const QSizeF size = PageSize();
    const int height = PageCount() ? static_cast<int>(PageTop(PageCount())) : 0;
    const int width = static_cast<int>(std::ceil(size.width() + 2 * kGap));
    verticalScrollBar()->setRange(0, std::max(height - viewport()->height(), 0));
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setSingleStep(40);
    horizontalScrollBar()->setRange(0, std::max(width - viewport()->width(), 0));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(40);
}

void PagePreview::TellCurrentPage() {
    const int page = CurrentPage();
    if (page == toldPage_) return;
    toldPage_ = page;
    Q_EMIT CurrentPageChanged(page);
}

void PagePreview::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.fillRect(event->rect(), palette().color(QPalette::Dark));
    if (PageCount() == 0 || !painter_) return;
    const double height = PageSize().height() + kGap;
    const double top = verticalScrollBar()->value();
    const int first = std::max(static_cast<int>(top / height) - 1, 0);
    for (int page = first; page < PageCount(); ++page) {
        const QRectF rect = PageRect(page);
        if (rect.top() > event->rect().bottom()) break;
        if (rect.bottom() < event->rect().top()) continue;
        painter.fillRect(rect.translated(2, 2), QColor(0, 0, 0, 90));
        painter.fillRect(rect, Qt::white);
        painter.save();
        painter.setClipRect(rect);
        painter.translate(rect.topLeft());
        painter_->Paint(painter, document_->Page(static_cast<std::size_t>(page)), Scale());
        painter.restore();
    }
    if (match_) {
        painter.setCompositionMode(QPainter::CompositionMode_Multiply);
        painter.fillRect(MatchRect(), QColor(255, 214, 64));
    }
}

void PagePreview::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    ApplyFit();
    UpdateScrollBars();
    TellCurrentPage();
    if (fit_ != PageFit::None) Q_EMIT ZoomChanged();
}

void PagePreview::scrollContentsBy(int /*dx*/, int /*dy*/) {
    chosenPage_.reset();
    viewport()->update();
    TellCurrentPage();
}

void PagePreview::keyPressEvent(QKeyEvent* event) {
    if (!TakeKey(*event)) QAbstractScrollArea::keyPressEvent(event);
}

bool PagePreview::TakeKey(const QKeyEvent& event) {
    const bool control = event.modifiers().testFlag(Qt::ControlModifier);
    const auto turn = [this](int pages) { GoToPage(CurrentPage() + pages); };
    switch (event.key()) {
        case Qt::Key_Home:
            GoToPage(0);
            return true;
        case Qt::Key_End:
            GoToPage(PageCount() - 1);
            return true;
        case Qt::Key_PageDown:
            if (!control && fit_ != PageFit::Page) return false;
            turn(1);
            return true;
        case Qt::Key_PageUp:
            if (!control && fit_ != PageFit::Page) return false;
            turn(-1);
            return true;
        case Qt::Key_Space:
            verticalScrollBar()->triggerAction(event.modifiers().testFlag(Qt::ShiftModifier)
                                                   ? QAbstractSlider::SliderPageStepSub
                                                   : QAbstractSlider::SliderPageStepAdd);
            return true;
        default:
            return false;
    }
}

void PagePreview::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    if (event->angleDelta().y() > 0) ZoomIn();
    if (event->angleDelta().y() < 0) ZoomOut();
    event->accept();
}

void PagePreview::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    dragFrom_ = event->pos();
    viewport()->setCursor(Qt::ClosedHandCursor);
}

void PagePreview::mouseMoveEvent(QMouseEvent* event) {
    if (!dragFrom_) return;
    const QPoint moved = event->pos() - *dragFrom_;
    dragFrom_ = event->pos();
    verticalScrollBar()->setValue(verticalScrollBar()->value() - moved.y());
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - moved.x());
}

void PagePreview::mouseReleaseEvent(QMouseEvent* /*event*/) {
    dragFrom_.reset();
    viewport()->setCursor(Qt::OpenHandCursor);
}

bool PagePreview::Find(const QString& text, SearchDirection direction) {
    viewport()->update();
    if (text.isEmpty() || PageCount() == 0) {
        match_.reset();
        return text.isEmpty();
    }
    PageMatch from{.page = static_cast<std::size_t>(CurrentPage())};
    from.isStart = true;
    match_ = SearchPages(*document_, FromScreen(text), match_.value_or(from), direction);
    if (match_) ShowMatch();
    return match_.has_value();
}

/// Returns the place of the found text in the view.
QRectF PagePreview::MatchRect() const {
    const PrintedPage page = document_->Page(match_->page);
    const PageItem& item = page.Items()[match_->item];
    const std::string_view text = page.TextOf(item);
    const double em = static_cast<double>(item.size) * kTwipsPerPoint;
    const auto width = [&](std::string_view part) { return fonts_->Width(item.face, part) * em; };
    const double left = item.x1 + width(text.substr(0, match_->begin));
    const double length = width(text.substr(match_->begin, match_->length));
    const QRectF place(QPointF(left, item.y1 - 0.9 * em), QSizeF(length, 1.15 * em));
    const double scale = Scale();
    return QRectF(place.topLeft() * scale, place.size() * scale)
        .translated(PageRect(static_cast<int>(match_->page)).topLeft());
}

void PagePreview::ShowMatch() {
    const QRectF rect = MatchRect();
    const QRectF room = viewport()->rect().adjusted(0, 20, 0, -20);
    if (rect.top() < room.top() || rect.bottom() > room.bottom()) {
        const double move = rect.center().y() - room.center().y();
        verticalScrollBar()->setValue(verticalScrollBar()->value() + static_cast<int>(move));
    }
    if (rect.left() < room.left() || rect.right() > room.right()) {
        const double move = rect.center().x() - room.center().x();
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() + static_cast<int>(move));
    }
    chosenPage_ = static_cast<int>(match_->page);
    TellCurrentPage();
    viewport()->update();
}

} // namespace platform::qt
