#pragma once

#include <QTimer>
#include <QWidget>
#include <memory>

#include "photoreel/Reel.h"

namespace Ui {
class frmPhotoReel;
}

namespace photoreel {

/// The window of the slide show: one picture at a time, forwards and backwards with buttons, keys
/// and mouse, automatically while it plays, and on the full screen.
class frmPhotoReel : public QWidget {
    Q_OBJECT

  public:
    frmPhotoReel();
    ~frmPhotoReel() override;

    /// Reads the list file and shows its first picture, or a message if there is none.
    void Setup(const std::string& listFile);

    bool IsPlaying() const { return player_.isActive(); }

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    using Step = bool (Reel::*)(const Obstacle& obstacle);

    void Connect();
    void Go(Step step);
    void StepByHand(Step step);
    void Play(bool on);
    void SwitchFullScreen();

    std::unique_ptr<Ui::frmPhotoReel> ui_;
    Reel reel_;
    QTimer player_;
};

} // namespace photoreel
