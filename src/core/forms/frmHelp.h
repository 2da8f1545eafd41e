#pragma once

#include <QHelpEngine>
#include <QTextBrowser>
#include <QUrl>

#include "core/forms/Form.h"

class QTabWidget;

namespace core::forms {

/// Shows pages of the compiled help; other addresses open in the browser.
class HelpPage : public QTextBrowser {
    Q_OBJECT

  public:
    HelpPage(QHelpEngine& engine, QWidget* parent);
    QVariant loadResource(int type, const QUrl& name) override;

  protected:
    void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override;
    void changeEvent(QEvent* event) override;

  private:
    QHelpEngine& engine_;
};

/// The help: contents, index and search beside the page.
class frmHelp : public Form {
    Q_OBJECT

  public:
    /// Reads the compiled help `file`; keeps its collection in `cacheFolder`.
    frmHelp(const QString& file, const QString& cacheFolder, QWidget* parent = nullptr);

    /// Shows a page by name; the first page if it doesn't exist.
    void Setup(const QString& topic);
    bool HasTopic(const QString& topic) const;
    QString Topic() const;
    HelpPage& Page() { return *page_; }
    QHelpEngine& Engine() { return engine_; }

  private:
    void RegisterFile(const QString& file);
    QWidget* MakeIndex();
    QWidget* MakeSearch();
    QWidget* MakeToolBar();

    QHelpEngine engine_;
    HelpPage* page_;
    QTabWidget* ways_;
};

/// Makes HELP and F1 open the help installed with the program. All callers share one window, which
/// comes to the front.
void RegisterHelpWindow();

} // namespace core::forms
