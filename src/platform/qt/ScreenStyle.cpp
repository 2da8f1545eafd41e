#include "platform/qt/ScreenStyle.h"

#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace platform::qt {

namespace {

constexpr int kDark = 128;        // of lightness
constexpr int kButtonMargin = 10; // left and right of a button's words
constexpr qreal kCorner = 2;

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < kDark;
}

} // namespace

ScreenStyle::ScreenStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

QSize ScreenStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                    const QSize& size, const QWidget* widget) const {
    QSize wanted = QProxyStyle::sizeFromContents(type, option, size, widget);
    const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (type == CT_PushButton && button != nullptr && !button->text.isEmpty())
        wanted.setWidth(std::max(wanted.width(), size.width() + 2 * kButtonMargin));
    return wanted;
}

/// Fusion outlines in a colour that is darker than the window, which can't be seen on a dark one.
void ScreenStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isBox = element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
    if (!isBox || !IsDark(option->palette)) return;
    const bool isEnabled = option->state.testFlag(State_Enabled);
    QColor line = option->palette.color(QPalette::Disabled, QPalette::Text);
    if (!isEnabled) line = line.darker();
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(line);
    painter->setBrush(Qt::NoBrush);
    const QRectF edge = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (element == PE_IndicatorCheckBox) {
        painter->drawRoundedRect(edge, kCorner, kCorner);
    } else {
        painter->drawEllipse(edge);
    }
    painter->restore();
}

} // namespace platform::qt
