#pragma once

#include <QWidget>

#include "shell/RunDigest.h"

class QAction;
class QToolButton;

namespace alerts::screens {
class Alerts;
}

namespace shell::screens {

/// The page that the program opens on: what needs attention, and above it one line of what the
/// bring-up-to-date run posted, if it posted anything.
class HomePage : public QWidget {
    Q_OBJECT

  public:
    explicit HomePage(QWidget* parent = nullptr);

    /// The page's side menu offers the two wizards as these actions do.
    void BindWizards(QAction& lease, QAction& mortgage);
    /// Works out anew what needs attention.
    void Refresh();
    /// Writes the notes; asks whether to go on without them when they can't be written.
    bool AskToClose();
    /// Writes the notes, if need be into another file, so that they aren't lost.
    void SaveNotesOrRescue();
    /// The line over the page; it leads to the list of what was posted. `digest` must outlive the
    /// page.
    void ShowDigest(const RunDigest& digest);

  private:
    QToolButton* posted_;
    alerts::screens::Alerts* alerts_;
    const RunDigest* digest_ = nullptr;
};

} // namespace shell::screens
