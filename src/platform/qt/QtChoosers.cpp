#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>

#include "platform/qt/QtDialogs.h"
#include "platform/qt/Text.h"

namespace platform::qt {

namespace {

QString Filters(const FileQuestion& question) {
    QStringList filters;
    for (const FileFilter& filter : question.filters) {
        // Qt's "*.*" would leave out files without an extension.
        const std::string patterns = filter.patterns == "*.*" ? "*" : filter.patterns;
        filters << QStringLiteral("%1 (%2)").arg(ToScreen(filter.name), ToScreen(patterns));
    }
    return filters.join(QStringLiteral(";;"));
}

std::optional<std::string> Chosen(const QString& path) {
    if (path.isEmpty()) return std::nullopt;
    return FromScreen(path);
}

class ChooserBoxes : public Choosers {
  public:
    std::optional<std::string> OpenFile(const FileQuestion& question) override {
        return Chosen(QFileDialog::getOpenFileName(QApplication::activeWindow(),
                                                   ToScreen(question.title),
                                                   ToScreen(question.start), Filters(question)));
    }
    std::optional<std::string> SaveFile(const FileQuestion& question) override {
        return Chosen(QFileDialog::getSaveFileName(QApplication::activeWindow(),
                                                   ToScreen(question.title),
                                                   ToScreen(question.start), Filters(question)));
    }
    std::optional<std::string> Folder(std::string_view title, std::string_view start) override {
        return Chosen(QFileDialog::getExistingDirectory(QApplication::activeWindow(),
                                                        ToScreen(title), ToScreen(start)));
    }
    std::optional<std::uint32_t> Color(std::string_view title, std::uint32_t rgb) override {
        const QColor color = QColorDialog::getColor(QColor::fromRgb(rgb),
                                                    QApplication::activeWindow(), ToScreen(title));
        if (!color.isValid()) return std::nullopt;
        return color.rgb() & 0xFFFFFFU;
    }
};

} // namespace

std::unique_ptr<Choosers> MakeChoosers() {
    return std::make_unique<ChooserBoxes>();
}

} // namespace platform::qt
