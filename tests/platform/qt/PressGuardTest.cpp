#include "platform/qt/PressGuard.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

#include "support/screens/DoubleClick.h"
#include "support/screens/Driving.h"

namespace {

class Presses : public testing::Test {
  protected:
    Presses() {
        platform::qt::GuardPresses();
        platform::qt::GuardPresses(); // once is enough
        auto* const rows = new QVBoxLayout(&dialog_);
        for (QWidget* const widget : std::initializer_list<QWidget*>{&ok_, &list_, &box_})
            rows->addWidget(widget);
        ok_.setDefault(true);
        dialog_.show();
    }
    /// Sends a key that is held: pressed, and repeated twice.
    static void Hold(QWidget& widget, Qt::Key key, const QString& text = {}) {
        for (const bool isRepeat : {false, true, true}) {
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text, isRepeat);
            QCoreApplication::sendEvent(&widget, &press);
        }
    }

    QDialog dialog_;
    QPushButton ok_;
    QListWidget list_;
    QLineEdit box_;
};

TEST_F(Presses, OfADoubleClickAreOneClick) {
    QPushButton ticks;
    ticks.setCheckable(true);
    QPushButton pages;
    pages.setProperty(platform::qt::kTakesEveryPress, true);
    QWidget bar;
    bar.setProperty(platform::qt::kTakesEveryPress, true);
    QToolButton turn(&bar);
    struct Row {
        QAbstractButton* button;
        int clicks;
    };
    for (const Row& row : {Row{&ok_, 1}, Row{&ticks, 2}, Row{&pages, 2}, Row{&turn, 2}}) {
        const QSignalSpy clicks(row.button, &QAbstractButton::clicked);
        support::DoubleClickOn(*row.button);
        EXPECT_EQ(clicks.count(), row.clicks);
        support::ClickOn(*row.button);
        EXPECT_EQ(clicks.count(), row.clicks + 1);
    }
}

TEST_F(Presses, OfAHeldKeyGiveItsCommandOnce) {
    const QSignalSpy clicks(&ok_, &QPushButton::clicked);
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter})
        Hold(dialog_, key);
    EXPECT_EQ(clicks.count(), 2);
    Hold(box_, Qt::Key_Return);
    EXPECT_EQ(clicks.count(), 3) << "from a box too";
    Hold(box_, Qt::Key_7, QStringLiteral("7"));
    EXPECT_EQ(box_.text(), QStringLiteral("777"));

    list_.addItems(
        {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("d")});
    list_.setCurrentRow(0);
    Hold(list_, Qt::Key_Down);
    EXPECT_EQ(list_.currentRow(), 3);
    const QSignalSpy opened(&list_, &QListWidget::itemActivated);
    Hold(list_, Qt::Key_Return);
    EXPECT_EQ(opened.count(), 1);
}

TEST_F(Presses, OfAHeldLetterOfACaptionAreOneClick) {
    QPushButton pages(QStringLiteral("&Page"), &dialog_);
    pages.setProperty(platform::qt::kTakesEveryPress, true);
    pages.show();
    ok_.setText(QStringLiteral("&Save"));
    dialog_.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog_));
    box_.setFocus();
    struct Row {
        const QAbstractButton* button;
        Qt::Key letter;
        int clicks;
    };
    for (const Row& row : {Row{&ok_, Qt::Key_S, 1}, Row{&pages, Qt::Key_P, 3}}) {
        const QSignalSpy clicks(row.button, &QAbstractButton::clicked);
        for (const bool isRepeat : {false, true, true}) {
            QTest::simulateEvent(&dialog_, true, row.letter, Qt::AltModifier, {}, isRepeat);
            EXPECT_TRUE(QTest::qWaitFor([&] { return !row.button->isDown(); }));
        }
        EXPECT_EQ(clicks.count(), row.clicks);
    }
    const QSignalSpy clicks(&ok_, &QAbstractButton::clicked);
    QTest::keyClick(&dialog_, Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return clicks.count() == 1; })) << "pressed again";
}

} // namespace
