#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QTimer>

#include "platform/qt/QtDialogs.h"

namespace tests {

namespace {

/// Shows a question and returns how many lines its text has on the screen.
int LinesShown(const std::string& text) {
    int lines = 0;
    QTimer::singleShot(0, [&] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        const auto* const label = box->findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
        const QRect needed = label->fontMetrics().boundingRect(
            label->contentsRect().adjusted(label->margin(), 0, -label->margin(), 0),
            label->wordWrap() ? Qt::TextWordWrap : 0, label->text());
        lines = needed.height() / label->fontMetrics().lineSpacing();
        box->reject();
    });
    EXPECT_FALSE(platform::qt::MakeDialogs()->AskYesNo("Title", text, platform::Icon::Question));
    return lines;
}

TEST(MessageBoxes, BreakOnlyLinesThatHaveNoBreaksOfTheirOwn) {
    const std::string line(78, 'n');
    EXPECT_EQ(LinesShown(line.substr(0, 30) + "\n" + line.substr(0, 40)), 2);
    std::string words;
    for (int i = 0; i < 20; ++i)
        words += "words ";
    EXPECT_EQ(LinesShown(words.substr(0, 90) + "\nand more"), 2);
    EXPECT_GT(LinesShown(words + words), 2) << "a paragraph";
    EXPECT_GT(LinesShown(words + words + words + words + "\nand more"), 3) << "a long one";
}

} // namespace

} // namespace tests
