#include "support/screens/Driving.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <QTreeWidget>

#include "core/binding/Tags.h"
#include "platform/qt/Text.h"

namespace support {

using platform::qt::FromScreen;
using platform::qt::ToScreen;

void Type(QWidget& box, std::string_view text) {
    if (auto* const line = qobject_cast<QLineEdit*>(&box)) line->clear();
    if (auto* const page = qobject_cast<QPlainTextEdit*>(&box)) page->clear();
    if (auto* const combo = qobject_cast<QComboBox*>(&box)) combo->clearEditText();
    TypeOn(box, text);
}

void TypeOn(QWidget& box, std::string_view text) {
    QTest::keyClicks(&box, ToScreen(text));
}

void TypeAndTab(QWidget& form, std::string_view text) {
    QWidget* const box = form.focusWidget();
    if (!box) throw std::runtime_error("nothing has the focus");
    TypeOn(*box, text);
    QTest::keyClick(box, Qt::Key_Tab);
}

void ClickAction(const QWidget& form, std::string_view word) {
    for (QAbstractButton* const button : form.findChildren<QAbstractButton*>()) {
        if (core::binding::TagOf(*button) == word) return ClickOn(*button);
    }
    throw std::runtime_error("no button " + std::string(word));
}

void ClickOn(QWidget& control) {
    QTest::mouseClick(&control, Qt::LeftButton);
}

void Choose(const QWidget& form, const char* combo, std::string_view text) {
    QComboBox& box = Find<QComboBox>(form, combo);
    const int row = box.findText(ToScreen(text));
    if (row < 0) throw std::runtime_error(std::string(combo) + " offers no " + std::string(text));
    box.setCurrentIndex(row);
}

void SettleEvents() {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

std::string GridText(const core::grid::Grid& grid) {
    const core::grid::GridModel& model = grid.Model();
    const auto line = [&](auto cell) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column) {
            if (!grid.isColumnHidden(column)) cells << cell(column);
        }
        return FromScreen(cells.join(QLatin1Char('|'))) + "\n";
    };
    std::string text = line([&](int column) { return model.Caption(column); });
    for (int row = 0; row < model.rowCount(); ++row) {
        text += line([&](int column) { return model.CellText(row, column); });
    }
    return text;
}

std::string Text(const QWidget& form, const char* name) {
    const QWidget& control = Find<QWidget>(form, name);
    for (const char* const property : {"currentText", "text"}) {
        const QVariant text = control.property(property);
        if (text.isValid()) return FromScreen(text.toString());
    }
    return "?";
}

std::vector<std::string> ListRows(const QWidget& form, const char* list) {
    const auto& tree = Find<QTreeWidget>(form, list);
    std::vector<std::string> rows;
    for (int row = 0; row < tree.topLevelItemCount(); ++row) {
        const QTreeWidgetItem* const item = tree.topLevelItem(row);
        std::string line = item->checkState(0) == Qt::Checked ? "x " : "";
        for (int column = 0; column < tree.columnCount(); ++column) {
            if (tree.isColumnHidden(column)) continue;
            line += (column > 0 ? "|" : "") + FromScreen(item->text(column));
        }
        rows.push_back(line);
    }
    return rows;
}

void Trigger(const QWidget& form, const char* item) {
    auto* const action = form.findChild<QAction*>(QLatin1String(item));
    if (!action) throw std::runtime_error(std::string("no item ") + item);
    if (!action->isEnabled()) throw std::runtime_error(std::string(item) + " can't be chosen");
    action->trigger();
}

} // namespace support
