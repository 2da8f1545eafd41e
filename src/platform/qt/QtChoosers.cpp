#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFileInfo>

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

/// Returns "html" for "*.html *.htm"; empty if any file will do.
QString SuffixOf(const QString& patterns) {
    const QString first = patterns.section(QLatin1Char(' '), 0, 0);
    return first.contains(QLatin1Char('.')) && !first.endsWith(QLatin1Char('*'))
               ? first.section(QLatin1Char('.'), -1)
               : QString();
}

/// Returns the patterns in "Web pages (*.html *.htm)".
QString PatternsOf(const QString& filter) {
    return filter.section(QLatin1Char('('), -1).chopped(1);
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
        QFileDialog dialog(QApplication::activeWindow(), ToScreen(question.title), {},
                           Filters(question));
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        // The dialog also asks before replacing a file whose extension wasn't typed.
        const auto setSuffix = [&dialog](const QString& filter) {
            dialog.setDefaultSuffix(SuffixOf(PatternsOf(filter)));
        };
        setSuffix(dialog.selectedNameFilter());
        QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, setSuffix);
        const QFileInfo start(ToScreen(question.start));
        if (start.isDir()) {
            dialog.setDirectory(start.filePath());
        } else {
            if (start.isAbsolute()) dialog.setDirectory(start.path());
            dialog.selectFile(start.fileName());
        }
        if (dialog.exec() != QDialog::Accepted) return std::nullopt;
        return Chosen(dialog.selectedFiles().value(0));
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
