#include "support/screens/Driving.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

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

} // namespace support
