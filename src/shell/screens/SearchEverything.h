#pragma once

#include <QObject>
#include <QPointer>
#include <functional>
#include <memory>
#include <vector>

#include "search/Finder.h"
#include "search/screens/frmSearch.h"

class QMainWindow;

namespace shell::screens {

/// The search for everything: gives the box the program's reports, categories, commands and
/// settings to find beside the records, and opens them.
class SearchEverything : public QObject {
    Q_OBJECT

  public:
    /// The commands to be found are the items of the menus of `window`.
    explicit SearchEverything(QMainWindow& window);
    ~SearchEverything() override;

    /// Opens the box, or brings it to the front.
    void Show();
    /// Releases the books and the index; call it before the session closes.
    void Release();

  protected:
    /// Leaves Ctrl+K to the menu: boxes to type in would take it to delete the text after the
    /// caret.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void CollectItems();

    QMainWindow& window_;
    std::unique_ptr<search::Finder> finder_;
    std::vector<std::function<void()>> openers_; ///< of the finder's items
    QPointer<search::screens::frmSearch> box_;
};

} // namespace shell::screens
