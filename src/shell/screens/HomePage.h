#pragma once

#include <QWidget>

#include "shell/RunDigest.h"

class QAction;
class QLabel;
class QPushButton;
class QToolButton;

namespace alerts {
struct FirstStep;
}
namespace alerts::screens {
class Alerts;
}

namespace shell::screens {

/// The page that the program opens on: what needs attention, and above it one line each about books
/// that can't be used as usual, the first steps in empty books, and what the daily run has posted.
class HomePage : public QWidget {
    Q_OBJECT

  public:
    explicit HomePage(QWidget* parent = nullptr);

    /// Makes the side menu's wizard items trigger these actions.
    void BindWizards(QAction& lease, QAction& mortgage);
    /// Finds again what needs attention.
    void Refresh();
    /// Writes the notes; asks whether to go on if they can't be written.
    bool AskToClose();
    /// Writes the notes, to another file if necessary, so that they aren't lost.
    void SaveNotesOrRescue();
    /// Shows the line about what was posted, which opens the list of it. `digest` must outlive the
    /// page.
    void ShowDigest(const RunDigest& digest);

  private:
    void SetUpNotices();
    void ShowBooksNotice();
    void ShowFirstStep();

    QLabel* books_;
    QWidget* firstStep_;
    QLabel* firstStepText_;
    QPushButton* firstStepCommand_;
    const alerts::FirstStep* step_ = nullptr;
    QToolButton* posted_;
    alerts::screens::Alerts* alerts_;
    const RunDigest* digest_ = nullptr;
};

} // namespace shell::screens
