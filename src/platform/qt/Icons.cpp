#include "platform/qt/Icons.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

// The resources are in a static library, so they must be initialised by name, outside a namespace.
static void LoadIconResources() {
    Q_INIT_RESOURCE(icons);
}

namespace platform::qt {

namespace {

QColor InkFor(QIcon::Mode mode) {
    const QPalette palette = QApplication::palette();
    switch (mode) {
        case QIcon::Disabled:
            return palette.color(QPalette::Disabled, QPalette::WindowText);
        case QIcon::Selected:
            return palette.color(QPalette::HighlightedText);
        case QIcon::Normal:
        case QIcon::Active:
            break;
    }
    return palette.color(QPalette::WindowText);
}

class PaletteIconEngine : public QIconEngine {
  public:
    explicit PaletteIconEngine(QByteArray drawing) : drawing_(std::move(drawing)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        QByteArray inked = drawing_;
        inked.replace("currentColor", InkFor(mode).name().toLatin1());
        QSvgRenderer renderer(inked);
        renderer.setAspectRatioMode(Qt::KeepAspectRatio);
        if (mode == QIcon::Disabled) painter->setOpacity(kDisabledOpacity);
        renderer.render(painter, rect);
        painter->setOpacity(1);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }
    QIconEngine* clone() const override { return new PaletteIconEngine(drawing_); }
    bool isNull() override { return drawing_.isEmpty(); }

  private:
    static constexpr double kDisabledOpacity = 0.5; // for the parts with colours of their own

    QByteArray drawing_;
};

} // namespace

QIcon LoadIcon(const QString& name) {
    LoadIconResources();
    QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly)) return {};
    return QIcon(new PaletteIconEngine(file.readAll()));
}

} // namespace platform::qt
