#pragma once

#include <QWidget>

#include "shell/RunDigest.h"

class QAction;
class QLabel;
class QPushButton;
class QTabWidget;
class QToolButton;

namespace alerts {
struct FirstStep;
}
namespace alerts::screens {
class Alerts;
class PicturePage;
} // namespace alerts::screens

namespace shell::screens {

/// The page shown when the program starts: the alerts, beside them the portfolio as a picture, and
/// above both a line each for notes that can't be saved, books with restrictions, the first steps
/// in empty books, and the rows posted by the daily run.
class HomePage : public QWidget {
    Q_OBJECT

  public:
    explicit HomePage(QWidget* parent = nullptr);

    /// Makes the side menu's wizard items trigger these actions.
    void BindWizards(QAction& lease, QAction& mortgage);
    /// Makes the button beside the line about the daily run trigger this action.
    void BindLookAhead(QAction& action);
    /// Reads the alerts again.
    void Refresh();
    /// Returns whether the picture is shown. It can be switched off; that, and the page that was
    /// shown last, are remembered.
    bool HasPicture() const;
    void SetPicture(bool shown);
    /// Saves the notes; asks whether to continue if they can't be saved.
    bool AskToClose();
    /// Saves the notes, to another file if necessary, so that they aren't lost.
    void SaveNotesOrRescue();
    /// Shows the line about what was posted, which opens the list of it. `digest` must outlive the
    /// page.
    void ShowDigest(const RunDigest& digest);

  private:
    void SetUpNotices();
    void ShowBooksNotice();
    void ShowFirstStep();
    void SetUpTabs();
    bool IsPictureCurrent() const;
    void ShowNotesFault(const QString& reason);

    QLabel* notesFault_;
    QLabel* books_;
    QWidget* firstStep_;
    QLabel* firstStepText_;
    QPushButton* firstStepCommand_;
    const alerts::FirstStep* step_ = nullptr;
    QToolButton* posted_;
    QToolButton* lookAhead_;
    QTabWidget* tabs_;
    alerts::screens::Alerts* alerts_;
    alerts::screens::PicturePage* picture_;
    const RunDigest* digest_ = nullptr;
};

} // namespace shell::screens
