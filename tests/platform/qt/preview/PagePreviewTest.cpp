#include "platform/qt/preview/PagePreview.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <QProcess>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include "../../printing/SampleReport.h"
#include "platform/printing/PrintSurface.h"
#include "platform/printing/pdf/PdfWriter.h"
#include "platform/qt/preview/PageThumbnails.h"
#include "platform/qt/preview/Printers.h"
#include "support/TemporaryFolder.h"

namespace platform::qt {
namespace {

class Preview : public ::testing::Test {
  protected:
    void DrawSample(PageSink& sink) {
        PrintSurface surface(fonts, &sink, nullptr);
        platform::testing::AddSampleStyles(surface);
        platform::testing::DrawSample(surface);
    }
    void DrawPages(int count, PageOrientation orientation = PageOrientation::Portrait) {
        PrintSurface surface(fonts, &document, nullptr);
        surface.SetUp({.orientation = orientation});
        surface.StartDoc();
        for (int i = 1; i <= count; ++i) {
            if (i > 1) surface.NewPage();
            surface.Text("This is page " + std::to_string(i));
        }
        surface.EndDoc();
    }
    static std::string OutputOf(const QString& program, const QStringList& arguments) {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(program, arguments);
        process.waitForFinished();
        return process.readAll().toStdString();
    }

    FontBook fonts;
    PrintedDocument document;
    support::TemporaryFolder folder;
};

/// How much two pictures of a page differ, of 255.
double Difference(const QImage& a, const QImage& b) {
    double sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            sum += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y)));
    }
    return sum / (a.width() * a.height());
}

TEST_F(Preview, DrawsThePageThatThePdfFileHas) {
    DrawSample(document);
    const auto pdf = (folder / "page.pdf").string();
    {
        OutputFile file(pdf);
        PdfWriter writer(file, fonts);
        DrawSample(writer);
        file.Commit();
    }
    const QString stem = QString::fromStdString((folder / "page").string());
    OutputOf("pdftoppm", {"-r", "60", "-png", "-singlefile", QString::fromStdString(pdf), stem});
    const QImage expected(stem + ".png");
    ASSERT_FALSE(expected.isNull());

    QImage drawn(expected.size(), QImage::Format_RGB32);
    drawn.fill(Qt::white);
    QPainter painter(&drawn);
    PagePainter(fonts).Paint(painter, document.Page(0), 60 / 1440.0);
    painter.end();
    drawn.save("preview.png");
    expected.save("pdf.png");
    QImage blank(expected.size(), QImage::Format_RGB32);
    blank.fill(Qt::white);
    // Two programs smooth letters differently; a text a few pixels off would double this.
    EXPECT_LT(Difference(drawn, expected), Difference(blank, expected) / 2);
}

TEST_F(Preview, PrintsARangeOfPagesWithTheirText) {
    DrawPages(4, PageOrientation::Landscape);
    const QString path = QString::fromStdString((folder / "printed.pdf").string());
    PrintOrder order{
        .printer = std::make_unique<QPrinter>(QPrinter::HighResolution), .first = 1, .last = 2};
    order.printer->setOutputFormat(QPrinter::PdfFormat);
    order.printer->setOutputFileName(path);
    int calls = 0;
    PrintPages(order, document, fonts, [&](int done) { return done == calls++; });
    EXPECT_EQ(calls, 2);
    EXPECT_THAT(OutputOf("pdftotext", {path, "-"}),
                ::testing::AllOf(::testing::HasSubstr("This is page 2"),
                                 ::testing::HasSubstr("This is page 3"),
                                 ::testing::Not(::testing::HasSubstr("page 1"))));
    EXPECT_THAT(OutputOf("pdfinfo", {path}), ::testing::HasSubstr("792 x 612"));
}

TEST_F(Preview, TurnsPagesWithKeysAndTellsWhichOneShows) {
    DrawPages(12);
    PagePreview view;
    view.resize(500, 400);
    view.show();
    QSignalSpy told(&view, &PagePreview::CurrentPageChanged);
    view.SetDocument(&document, &fonts);
    EXPECT_EQ(view.CurrentPage(), 0);
    const auto press = [&view](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&view, key, modifiers);
        return view.CurrentPage();
    };
    EXPECT_EQ(press(Qt::Key_PageDown, Qt::ControlModifier), 1);
    EXPECT_EQ(press(Qt::Key_End), 11);
    EXPECT_EQ(press(Qt::Key_PageDown, Qt::ControlModifier), 11);
    EXPECT_EQ(press(Qt::Key_PageUp, Qt::ControlModifier), 10);
    EXPECT_EQ(press(Qt::Key_Home), 0);
    EXPECT_EQ(told.back().front().toInt(), 0);
    view.SetFit(PageFit::Page);
    EXPECT_EQ(press(Qt::Key_PageDown), 1);
    EXPECT_EQ(press(Qt::Key_PageUp), 0);
    const int before = view.verticalScrollBar()->value();
    EXPECT_NE((press(Qt::Key_Down), view.verticalScrollBar()->value()), before);
}

TEST_F(Preview, FitsAndZoomsWithoutLosingThePlace) {
    DrawPages(9);
    PagePreview view;
    view.resize(600, 500);
    view.show();
    view.SetDocument(&document, &fonts);
    EXPECT_EQ(view.horizontalScrollBar()->maximum(), 0);
    view.GoToPage(5);
    const double fitted = view.Zoom();
    view.ZoomIn();
    EXPECT_GT(view.Zoom(), fitted);
    EXPECT_EQ(view.Fit(), PageFit::None);
    EXPECT_EQ(view.CurrentPage(), 5);
    view.SetZoom(5'000);
    EXPECT_EQ(view.Zoom(), 800);
    EXPECT_EQ(view.CurrentPage(), 5);
    for (int i = 0; i < 20; ++i)
        view.ZoomOut();
    EXPECT_EQ(view.Zoom(), 10);
    view.SetFit(PageFit::Page);
    view.GoToPage(5);
    view.resize(600, 900);
    EXPECT_EQ(view.CurrentPage(), 5);
}

TEST_F(Preview, ShowsPagesAsTheyComeAndNoneAtAll) {
    PagePreview view;
    PageThumbnails thumbnails;
    view.show();
    thumbnails.show();
    view.SetDocument(&document, &fonts);
    thumbnails.SetDocument(&document, &fonts);
    EXPECT_EQ(view.CurrentPage(), -1);
    EXPECT_FALSE(view.Find("page", SearchDirection::Forward));
    view.grab();
    DrawPages(3);
    view.PagesAdded();
    thumbnails.PagesAdded();
    EXPECT_EQ(view.PageCount(), 3);
    EXPECT_EQ(thumbnails.model()->rowCount(), 3);

    QSignalSpy chosen(&thumbnails, &PageThumbnails::PageChosen);
    thumbnails.ShowPage(1);
    EXPECT_EQ(chosen.count(), 0);
    QTest::keyClick(&thumbnails, Qt::Key_Down);
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen.front().front().toInt(), 2);
    thumbnails.grab();
    view.SetDocument(nullptr, nullptr);
    view.grab();
}

TEST_F(Preview, FindsTextAndBringsItIntoView) {
    DrawPages(8);
    PagePreview view;
    view.resize(500, 300);
    view.show();
    view.SetDocument(&document, &fonts);
    EXPECT_TRUE(view.Find("PAGE 7", SearchDirection::Forward));
    EXPECT_EQ(view.CurrentPage(), 6);
    view.grab();
    EXPECT_FALSE(view.Find("page 77", SearchDirection::Forward));
    EXPECT_TRUE(view.Find("page 1", SearchDirection::Backward));
    EXPECT_EQ(view.CurrentPage(), 0);
    EXPECT_TRUE(view.Find("", SearchDirection::Forward));
}

} // namespace
} // namespace platform::qt
