#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QPushButton>
#include <QStyleOption>
#include <cmath>

#include "platform/qt/Appearance.h"
#include "platform/qt/Icons.h"
#include "platform/qt/Text.h"

namespace {

using platform::qt::Appearance;
using platform::qt::ApplyAppearance;
using platform::qt::LoadIcon;

double Luminance(const QColor& color) {
    const auto part = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) +
           0.0722 * part(color.blueF());
}

double Contrast(const QColor& a, const QColor& b) {
    const double light = std::max(Luminance(a), Luminance(b));
    const double dark = std::min(Luminance(a), Luminance(b));
    return (light + 0.05) / (dark + 0.05);
}

class LooksTest : public testing::TestWithParam<Appearance> {
  protected:
    LooksTest() { ApplyAppearance(GetParam()); }
    ~LooksTest() override { ApplyAppearance(Appearance::Light); }
};

TEST_P(LooksTest, TextStandsOutFromItsGround) {
    constexpr double kLegible = 4.5;
    constexpr double kFaded = 2.3;
    const QPalette palette = QApplication::palette();
    for (const auto& [ink, ground] : {std::pair{QPalette::WindowText, QPalette::Window},
                                      {QPalette::Text, QPalette::Base},
                                      {QPalette::Text, QPalette::AlternateBase},
                                      {QPalette::ButtonText, QPalette::Button},
                                      {QPalette::HighlightedText, QPalette::Highlight},
                                      {QPalette::ToolTipText, QPalette::ToolTipBase},
                                      {QPalette::Link, QPalette::Base}}) {
        EXPECT_GE(Contrast(palette.color(ink), palette.color(ground)), kLegible) << ink;
    }
    EXPECT_GE(Contrast(palette.color(QPalette::Disabled, QPalette::WindowText),
                       palette.color(QPalette::Window)),
              kFaded);
}

TEST_P(LooksTest, PicturesTakeTheColourOfTheText) {
    const QImage image = LoadIcon(QStringLiteral("help")).pixmap(48, 48).toImage();
    const QColor ink = QApplication::palette().color(QPalette::WindowText);
    int inked = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (pixel.alpha() == 255 && pixel.rgb() == ink.rgb()) ++inked;
        }
    }
    EXPECT_GT(inked, 20);
}

TEST_P(LooksTest, EmptyBoxesCanBeSeenOnAList) {
    const QPalette palette = QApplication::palette();
    for (const auto element : {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorRadioButton}) {
        QImage image(20, 20, QImage::Format_RGB32);
        image.fill(palette.color(QPalette::Base));
        QPainter painter(&image);
        QStyleOptionButton box;
        box.palette = palette;
        box.rect = QRect(3, 3, 14, 14);
        box.state = QStyle::State_Enabled | QStyle::State_Off;
        QApplication::style()->drawPrimitive(element, &box, &painter);
        painter.end();
        double greatest = 1;
        for (int x = 0; x < image.width(); ++x)
            greatest = std::max(greatest,
                                Contrast(image.pixelColor(x, 10), palette.color(QPalette::Base)));
        EXPECT_GE(greatest, 1.5) << element;
    }
}

TEST_P(LooksTest, AButtonLeavesRoomAroundItsWords) {
    for (const char* const words : {"OK", "Restore a Backup..."}) {
        const QPushButton button(QString::fromLatin1(words));
        EXPECT_GE(button.sizeHint().width(),
                  button.fontMetrics().horizontalAdvance(button.text()) + 16)
            << words;
    }
}

INSTANTIATE_TEST_SUITE_P(Both, LooksTest, testing::Values(Appearance::Light, Appearance::Dark));

TEST(SystemColours, ComeBackAfterAChoice) {
    ApplyAppearance(Appearance::System);
    const QPalette system = QApplication::palette();
    ApplyAppearance(Appearance::Dark);
    EXPECT_NE(QApplication::palette().color(QPalette::Window), system.color(QPalette::Window));
    ApplyAppearance(Appearance::System);
    EXPECT_EQ(QApplication::palette(), system);
    ApplyAppearance(Appearance::Light);
    EXPECT_NE(QApplication::palette(), system) << "the system's palette is not ours";
}

TEST(Pictures, EachOneDrawsSomethingAtEverySize) {
    LoadIcon(QStringLiteral("help"));
    const QStringList names = QDir(QStringLiteral(":/icons")).entryList();
    ASSERT_GE(names.size(), 20);
    for (const QString& file : names) {
        const QIcon icon = LoadIcon(QString(file).remove(QStringLiteral(".svg")));
        for (const int size : {16, 24, 64}) {
            const QImage image = icon.pixmap(size, size).toImage();
            bool drawn = false;
            for (int y = 0; y < image.height() && !drawn; ++y) {
                for (int x = 0; x < image.width(); ++x)
                    drawn |= qAlpha(image.pixel(x, y)) > 128;
            }
            EXPECT_TRUE(drawn) << file.toStdString() << " at " << size;
        }
    }
    EXPECT_TRUE(LoadIcon(QStringLiteral("no such picture")).isNull());
}

TEST(ScreenText, Utf8GoesThereAndBack) {
    for (const char* const text : {"", "O'Brien", "Zo\u00eb", "\u20ac 5", "\U0001F3E0"}) {
        EXPECT_EQ(platform::qt::FromScreen(platform::qt::ToScreen(text)), text);
    }
    EXPECT_EQ(platform::qt::ToScreen("a\xff"), QStringLiteral("a\uFFFD"));
}

} // namespace
