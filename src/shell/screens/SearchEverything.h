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
    /// The menus of `window` are its commands.
    explicit SearchEverything(QMainWindow& window);
    ~SearchEverything() override;

    /// Opens the box, or brings it to the front.
    void Show();
    /// Releases the books and the index; before the session closes.
    void Release();

  protected:
    /// Boxes to type in would take Ctrl+K to delete what follows the caret.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void CollectItems();

    QMainWindow& window_;
    std::unique_ptr<search::Finder> finder_;
    std::vector<std::function<void()>> openers_; ///< of the finder's items
    QPointer<search::screens::frmSearch> box_;
};

} // namespace shell::screens
