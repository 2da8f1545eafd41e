#pragma once

#include <QProxyStyle>

namespace platform::qt {

/// The look of all screens: Fusion, with room around the words of a wide button, and with an
/// outline of boxes to tick that can be seen on dark colours.
class ScreenStyle : public QProxyStyle {
  public:
    ScreenStyle();

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

} // namespace platform::qt
