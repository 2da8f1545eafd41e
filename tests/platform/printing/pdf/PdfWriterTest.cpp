#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <string>

#include "../SampleReport.h"
#include "platform/printing/PrintSurface.h"
#include "platform/printing/pdf/PdfWriter.h"
#include "platform/system/Paths.h"
#include "platform/values/Errors.h"
#include "support/TemporaryFolder.h"

namespace platform {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

/// The output of a command, its messages included; "failed" is added where it fails.
std::string OutputOf(const std::string& command) {
    std::FILE* pipe = popen((command + " 2>&1").c_str(), "r");
    std::string out;
    std::array<char, 4096> part{};
    while (const std::size_t count = std::fread(part.data(), 1, part.size(), pipe)) {
        out.append(part.data(), count);
    }
    return pclose(pipe) == 0 ? out : out + "failed";
}

class Pdf : public ::testing::Test {
  protected:
    template <typename Draw>
    void Write(Draw draw) {
        OutputFile file(path);
        PdfWriter writer(file, fonts);
        PrintSurface surface(fonts, &writer, nullptr);
        testing::AddSampleStyles(surface);
        draw(surface);
        file.Commit();
    }
    std::string By(const std::string& tool, const std::string& more = "") const {
        return OutputOf(tool + " " + path.string() + " " + more);
    }

    support::TemporaryFolder folder;
    std::filesystem::path path = folder / "report.pdf";
    FontBook fonts;
};

TEST_F(Pdf, IsSoundAndCarriesItsFontsAndInformation) {
    Write(testing::DrawSample);
    EXPECT_THAT(By("qpdf --check"), HasSubstr("No syntax or stream encoding errors"));
    EXPECT_THAT(By("pdfinfo"), AllOf(HasSubstr("Rent \"Roll\""), HasSubstr("Elm & Oak LLC"),
                                     HasSubstr("letter"), HasSubstr("Creator:         Vestrel")));
    const std::string list = By("pdffonts");
    EXPECT_THAT(list, AllOf(HasSubstr("LiberationSans-Bold"), Not(HasSubstr(" no "))));
    // Drawing says nothing where nothing is wrong.
    EXPECT_EQ(By("pdftoppm -r 30 -gray", (folder / "page").string()), "");
}

TEST_F(Pdf, GivesItsTextBackInEveryScript) {
    Write(testing::DrawSample);
    EXPECT_THAT(
        By("pdftotext -raw", "-"),
        AllOf(HasSubstr(
                  "Latin \u00C5ngstr\u00F6m \u0141\u00F3d\u017A, Greek "
                  "\u0391\u03B8\u03AE\u03BD\u03B1, "
                  "Cyrillic \u041C\u043E\u0441\u043A\u0432\u0430, \u20AC 5, \u201Cquoted\u201D"),
              HasSubstr("\u5F20\u4F1F"), HasSubstr("\uAE40\uCCA0\uC218"), HasSubstr("\U0001F600"),
              HasSubstr("\U00020000"), HasSubstr("e\u0301 combined"), HasSubstr("(12.00)"),
              HasSubstr("Ann \"Bee\" <Lee> & Co"), HasSubstr("Page 1")));
}

TEST_F(Pdf, HoldsManyPagesAndOddTexts) {
    Write([](PrintSurface& surface) {
        surface.SetUp({.paper = Paper::A4, .orientation = PageOrientation::Landscape});
        surface.StartDoc();
        for (int i = 0; i < 300; ++i) {
            surface.Text("(page\\ " + std::to_string(i) + ")\xFF\r\n" + std::string(1, '\x01'));
            surface.NewPage();
        }
        surface.EndDoc();
    });
    EXPECT_THAT(By("qpdf --check"), HasSubstr("No syntax or stream encoding errors"));
    EXPECT_THAT(By("pdfinfo"),
                AllOf(HasSubstr("Pages:           301"), HasSubstr("841.9 x 595.3")));
    EXPECT_THAT(By("pdftotext -f 300 -l 300", "-"), HasSubstr("(page\\ 299)\uFFFD"));
}

TEST(FontBook, MeasuresAsArialAndTahomaDo) {
    FontBook fonts;
    const FaceId arial = fonts.Face("arial ", Weight::Regular, Slant::Upright);
    EXPECT_NEAR(fonts.Width(arial, "Hamburgefons 123"), 8.504,
                0.005); // as the font's AFM file has it
    EXPECT_EQ(fonts.Face("Helvetica", Weight::Regular, Slant::Upright), arial);
    EXPECT_EQ(fonts.Face("No Such Font", Weight::Regular, Slant::Upright), arial);
    EXPECT_NE(fonts.Face("Arial", Weight::Bold, Slant::Upright), arial);
    const FaceId tahoma = fonts.Face("Tahoma", Weight::Regular, Slant::Upright);
    EXPECT_NEAR(fonts.Width(tahoma, "0"), 0.546, 0.001);
    EXPECT_TRUE(fonts.IsSlanted(fonts.Face("Tahoma", Weight::Regular, Slant::Italic)));
}

TEST(FontBook, MeasuresAWordAsTheSumOfItsWordsInEveryScript) {
    FontBook fonts;
    const FaceId face = fonts.Face("Arial", Weight::Regular, Slant::Upright);
    for (const char* text : {"AVAST To", "\u0391\u03B8\u03AE\u03BD\u03B1",
                             "\u05E9\u05DC\u05D5\u05DD abc", "\u0645\u0631\u062D\u0628\u0627",
                             "\u5F20\u4F1F", "\U0001F600x", "\U0010FFFD", "e\u0301"}) {
        double drawn = 0;
        for (const GlyphRun& run : fonts.Shape(face, text)) {
            for (const PlacedGlyph& glyph : run.glyphs)
                drawn += glyph.advance;
        }
        EXPECT_NEAR(fonts.Width(face, text), drawn, 1e-6) << text;
        EXPECT_GT(drawn, 0) << text;
    }
}

} // namespace
} // namespace platform
