#pragma once

#include <QElapsedTimer>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "core/forms/Form.h"
#include "platform/printing/PrintedDocument.h"
#include "platform/printing/SearchPages.h"
#include "platform/printing/fonts/FontBook.h"
#include "platform/qt/preview/Printers.h"
#include "reports/Export.h"
#include "reports/ReportRun.h"

class QAction;
class QMenu;
class QMenuBar;

namespace Ui {
class frmReportViewer;
}

namespace reports::screens {

/// The report viewer: runs a definition into a preview, prints it and exports it. One window serves
/// every run. While a long report is laid out its first pages can be read, and the layout can be
/// cancelled.
class frmReportViewer : public core::forms::Form {
    Q_OBJECT

  public:
    explicit frmReportViewer(QWidget* parent = nullptr);
    ~frmReportViewer() override;

    /// Runs the report of this number with its present choices and shows it; also used to refresh
    /// the viewer. Does nothing for an unknown number. A run in progress is stopped for the new
    /// one.
    void RunReport(int index);

    bool InRun() const { return inRun_; }
    const platform::PrintedDocument& Document() const { return document_; }

    /// Handles Escape: stops the running work, ends the search, or else closes.
    void reject() override;

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    enum class Work : std::uint8_t { None, Layout, Export, Print };

    // The window: actions and panels.
    void SetUpMenus();
    void FillFileMenu(QMenu& menu);
    void FillViewMenu(QMenu& menu);
    void SetUpToolBar();
    void SetUpPages();
    void ConnectChoices();
    QAction* AddAction(QMenu& menu, const char* name, const QString& text, const char* icon = "");
    QAction* Action(const char* name) const;
    /// Returns why the commands have to wait; empty if they don't.
    QString ReasonToWait() const;
    void EnableActions();

    // A run.
    void RunOnce(int index);
    void Lay(ReportDef& report);
    void ShowReport();
    void ShowChoices(const ReportRun& run);
    void FinishRun(bool wasLaid);
    void StoreChosenRecord();
    void StoreChosenDates();
    void OpenPageSetup();

    // Begins long work, during which the window stays responsive, and which stops when the user
    // asks.
    void BeginWork(Work work);
    bool GoOn(std::size_t done);
    void EndWork();
    void ShowProgress(std::size_t done);

    // Pages.
    void ShowCurrentPage(int page);
    void ShowZoom();
    void TakeZoom(const QString& text);
    void Find(platform::SearchDirection direction);
    void SetNavbar(bool shown);
    void SetToolbar(bool shown);

    // Printing and export.
    void Print();
    void AskAndPrint(platform::qt::PagesOffered offered);
    void PrintPage();
    void PrintOn(const platform::qt::PrintOrder& order);
    void Export(ExportFormat format);
    void WriteExport(ExportFormat format, const std::string& path);
    void TellExported(ExportFormat format, const std::string& path);
    void SaveSettings() const;

    std::unique_ptr<Ui::frmReportViewer> ui_;
    std::unique_ptr<platform::FontBook> fonts_;
    platform::PrintedDocument document_;
    int reportIndex_ = 0;
    std::string title_;
    bool fixesOrientation_ = false;
    bool inRun_ = false;
    std::optional<int> nextRun_;
    Work work_ = Work::None;
    bool isCancelled_ = false;
    bool closesAfter_ = false;
    QElapsedTimer sinceMessages_;
};

/// Runs a report in the viewer, opening it if necessary.
void ViewReport(int index);

/// Sets how the viewer opens the catalogue screen; without it the command is disabled.
void SetCatalogueOpener(std::function<void()> opener);

} // namespace reports::screens
