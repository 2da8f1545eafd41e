#include "platform/qt/preview/PagePainter.h"

#include <QGlyphRun>
#include <QPainter>
#include <cmath>

namespace platform::qt {

namespace {

constexpr double kSlant = 0.2;

QColor ColorOf(PrintColor color) {
    return {static_cast<int>(color & 0xFFU), static_cast<int>(color >> 8U & 0xFFU),
            static_cast<int>(color >> 16U & 0xFFU)};
}

QPen PenOf(const PageItem& item, double scale) {
    QPen pen(ColorOf(item.color), item.pen * scale);
    pen.setCapStyle(Qt::FlatCap);
    pen.setJoinStyle(Qt::MiterJoin);
    return pen;
}

QRectF RectOf(const PageItem& item, double scale) {
    return {QPointF(item.x1, item.y1) * scale, QPointF(item.x2, item.y2) * scale};
}

} // namespace

void PagePainter::Paint(QPainter& painter, const PrintedPage& page, double scale) {
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    for (const PageItem& item : page.Items()) {
        switch (item.kind) {
            case PageItem::Kind::Text:
                Text(painter, item, page.TextOf(item), scale);
                break;
            case PageItem::Kind::Line:
                painter.setPen(PenOf(item, scale));
                painter.drawLine(QPointF(item.x1, item.y1) * scale,
                                 QPointF(item.x2, item.y2) * scale);
                break;
            case PageItem::Kind::Box:
                painter.setPen(item.pen ? PenOf(item, scale) : QPen(Qt::NoPen));
                painter.setBrush(item.filled ? QBrush(ColorOf(item.fill)) : QBrush());
                painter.drawRect(RectOf(item, scale));
                break;
        }
    }
    painter.restore();
}

void PagePainter::Text(QPainter& painter, const PageItem& item, std::string_view text,
                       double scale) {
    const double em = static_cast<double>(item.size) * kTwipsPerPoint * scale;
    painter.save();
    painter.translate(QPointF(item.x1, item.y1) * scale);
    if (item.angle) painter.rotate(-item.angle / 10.0);
    painter.setPen(ColorOf(item.color));
    for (const GlyphRun& run : fonts_.Glyphs(item.face, text))
        Run(painter, run, em);
    if (item.underline) {
        const double length = std::hypot(item.x2 - item.x1, item.y2 - item.y1) * scale;
        painter.fillRect(QRectF(0, 0.08 * em, length, 0.05 * em), ColorOf(item.color));
    }
    painter.restore();
}

void PagePainter::Run(QPainter& painter, const GlyphRun& run, double em) {
    QVector<quint32> glyphs;
    QVector<QPointF> places;
    double x = 0;
    for (const PlacedGlyph& glyph : run.glyphs) {
        glyphs.append(glyph.glyph);
        places.append(QPointF((x + glyph.dx) * em, -glyph.dy * em));
        x += glyph.advance;
    }
    QGlyphRun drawn;
    drawn.setRawFont(FontAt(run.font, em));
    drawn.setGlyphIndexes(glyphs);
    drawn.setPositions(places);
    painter.save();
    painter.translate(run.x * em, 0);
    if (run.slanted) painter.shear(-kSlant, 0);
    painter.drawGlyphRun(QPointF(), drawn);
    painter.restore();
}

const QRawFont& PagePainter::FontAt(FontIndex font, double pixels) {
    constexpr std::size_t kMost = 64; // sizes that are kept while somebody zooms
    if (sized_.size() > kMost) sized_.clear();
    QRawFont& sized = sized_[{font, static_cast<int>(std::lround(pixels * 64))}];
    if (!sized.isValid()) {
        // Unhinted, so that a line is as wide as it was laid out at every scale.
        sized = QRawFont(QString::fromStdString(fonts_.File(font).Path().string()), pixels,
                         QFont::PreferNoHinting);
    }
    return sized;
}

} // namespace platform::qt
