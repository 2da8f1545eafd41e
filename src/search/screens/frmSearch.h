#pragma once

#include <functional>

#include "core/RecordKinds.h"
#include "core/forms/Form.h"
#include "search/Finder.h"

class QLabel;
class QLineEdit;
class QTimer;

namespace search::screens {

class ResultList;

/// One box that finds everything: results come as the user types, and Enter opens the chosen one.
class frmSearch : public core::forms::Form {
    Q_OBJECT

  public:
    /// Opens the item of a number, which is one of the finder's.
    using ItemOpener = std::function<void(std::size_t item)>;

    /// `finder` must outlive the form.
    frmSearch(Finder& finder, ItemOpener openItem, QWidget* parent = nullptr);
    ~frmSearch() override;

    void Setup();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void NotifyUpdate(core::RecordKind kind, std::int16_t action, std::int32_t id) override;

  private:
    void Lay();
    /// Reads a little of what was written since, then shows the results again.
    void ReadOn();
    void ShowResults();
    void ShowStatus();
    void OpenHit(const Hit& hit);

    Finder& finder_;
    ItemOpener openItem_;
    QLineEdit* txtSearch_;
    ResultList* list_;
    QLabel* status_;
    QLabel* notice_;
    QTimer* reading_;
    bool isOpening_ = false;
};

} // namespace search::screens
