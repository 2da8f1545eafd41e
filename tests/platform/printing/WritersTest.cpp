#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "SampleReport.h"
#include "platform/printing/DocumentFlow.h"
#include "platform/printing/HtmlWriter.h"
#include "platform/printing/PackPage.h"
#include "platform/printing/PrintedDocument.h"
#include "platform/printing/RtfWriter.h"
#include "platform/printing/TextWriter.h"
#include "platform/system/Paths.h"

namespace platform {
namespace {

namespace fs = std::filesystem;

/// Compares with expected/NAME. What was made lies in actual/NAME of the build's test folder; to
/// renew the expectation, look at that and copy it.
void ExpectGolden(const std::string& name, const std::string& text) {
    fs::create_directories("actual");
    std::ofstream("actual/" + name, std::ios::binary) << text;
    const fs::path expected = fs::path(VESTREL_TEST_DATA) / "expected" / name;
    ASSERT_TRUE(fs::exists(expected)) << "see " << fs::absolute("actual/" + name);
    EXPECT_EQ(text, ReadWholeFile(expected)) << "see " << fs::absolute("actual/" + name);
}

template <typename Writer>
std::string SampleBy() {
    StringSink sink;
    Writer writer(sink);
    FixedMetrics metrics;
    PrintSurface surface(metrics, nullptr, &writer);
    testing::AddSampleStyles(surface);
    testing::DrawSample(surface);
    return sink.Text();
}

TEST(Writers, MakeTheSampleOfEachKind) {
    ExpectGolden("sample.html", SampleBy<HtmlWriter>());
    ExpectGolden("sample.rtf", SampleBy<RtfWriter>());
    ExpectGolden("sample.txt", SampleBy<TextWriter>());
}

TEST(Writers, MakeThePagesOfTheSample) {
    FixedMetrics metrics;
    PrintedDocument document;
    PrintSurface surface(metrics, &document, nullptr);
    testing::AddSampleStyles(surface);
    testing::DrawSample(surface);
    std::string pages;
    for (std::size_t i = 0; i < document.PageCount(); ++i)
        pages += DescribePage(document.Page(i));
    ExpectGolden("sample.pages", pages);
}

TEST(PackPage, GivesBackWhatWasPacked) {
    struct Check : PageSink {
        void BeginPages(const DocumentInfo&) override {}
        void AddPage(PrintedPage page) override {
            const std::string packed = PackPage(page);
            EXPECT_EQ(DescribePage(UnpackPage(packed)), DescribePage(page));
            std::size_t text = 0;
            for (const PageItem& item : page.Items())
                text += item.textLength;
            EXPECT_LT((packed.size() - text) * 4, page.Items().size() * sizeof(PageItem));
        }
        void EndPages() override {}
    } check;
    FixedMetrics metrics;
    PrintSurface surface(metrics, &check, nullptr);
    testing::AddSampleStyles(surface);
    testing::DrawSample(surface);
    EXPECT_EQ(DescribePage(UnpackPage(PackPage({}))), "page 0x0\n");
}

TEST(Writers, WriteAHeldFlowAsTheyWriteALiveOne) {
    FixedMetrics metrics;
    DocumentFlow flow;
    PrintSurface surface(metrics, nullptr, &flow);
    testing::AddSampleStyles(surface);
    testing::DrawSample(surface);
    StringSink sink;
    RtfWriter writer(sink);
    flow.WriteTo(writer);
    EXPECT_EQ(sink.Text(), SampleBy<RtfWriter>());
}

TEST(OutputFile, TakesItsNameOnlyWhenItIsWhole) {
    const fs::path folder = fs::temp_directory_path() / "vestrel-output-test";
    fs::remove_all(folder);
    fs::create_directories(folder);
    const fs::path path = folder / "report.txt";
    {
        OutputFile file(path);
        file.Write("first");
        file.Commit();
    }
    {
        OutputFile file(path);
        file.Write("second, given up");
    }
    EXPECT_EQ(ReadWholeFile(path), "first");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 1);
    EXPECT_THROW(OutputFile(folder / "no folder" / "x"), std::exception);
    OutputFile full("/dev/full");
    full.Write("lost");
    EXPECT_THROW(full.Commit(), std::exception);
    fs::remove_all(folder);
}

} // namespace
} // namespace platform
