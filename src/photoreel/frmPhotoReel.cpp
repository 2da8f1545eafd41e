#include "photoreel/frmPhotoReel.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>

#include "documents/screens/ReadPicture.h"
#include "platform/qt/Text.h"
#include "platform/system/Paths.h"
#include "platform/values/Errors.h"
#include "ui_frmPhotoReel.h"

namespace photoreel {

using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

constexpr int kPlayMilliseconds = 5000;

documents::ShowList ReadList(const std::string& file) {
    try {
        return documents::ParseShowList(platform::ReadWholeFile(file));
    } catch (const platform::Error&) {
        return {};
    }
}

} // namespace

frmPhotoReel::frmPhotoReel() : ui_(std::make_unique<Ui::frmPhotoReel>()), reel_({}) {
    ui_->setupUi(this);
    player_.setInterval(kPlayMilliseconds);
    Connect();
}

frmPhotoReel::~frmPhotoReel() = default;

void frmPhotoReel::Connect() {
    connect(ui_->cmdNext, &QPushButton::clicked, this, [this] { StepByHand(&Reel::Next); });
    connect(ui_->cmdPrevious, &QPushButton::clicked, this, [this] { StepByHand(&Reel::Previous); });
    connect(ui_->picShow, &PictureCanvas::NextAsked, this, [this] { StepByHand(&Reel::Next); });
    connect(ui_->picShow, &PictureCanvas::PreviousAsked, this,
            [this] { StepByHand(&Reel::Previous); });
    connect(ui_->cmdPlay, &QPushButton::toggled, this, &frmPhotoReel::Play);
    connect(&player_, &QTimer::timeout, this, [this] { Go(&Reel::Next); });
    connect(ui_->cmdFullScreen, &QPushButton::clicked, this, &frmPhotoReel::SwitchFullScreen);
    connect(ui_->cmdClose, &QPushButton::clicked, this, &QWidget::close);
}

void frmPhotoReel::Setup(const std::string& listFile) {
    reel_ = Reel(ReadList(listFile));
    if (!reel_.Title().empty()) setWindowTitle(ToScreen(reel_.Title()));
    for (QWidget* const control : {ui_->cmdNext, ui_->cmdPrevious, ui_->cmdPlay}) {
        control->setEnabled(!reel_.IsEmpty());
    }
    show();
    ui_->picShow->setFocus();
    Go(&Reel::First);
}

void frmPhotoReel::Go(Step step) {
    if (reel_.IsEmpty()) {
        ui_->picShow->ShowText(tr("There are no pictures to show."));
        return;
    }
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    QImage picture;
    const QSize bound = screen()->size() * screen()->devicePixelRatio();
    const bool found = (reel_.*step)([&](const documents::ShowPicture& one) {
        const auto read = documents::screens::ReadPicture(ToScreen(one.path), bound);
        picture = read.image;
        return FromScreen(documents::screens::FaultText(read.fault));
    });
    QGuiApplication::restoreOverrideCursor();
    if (found) {
        ui_->picShow->ShowPicture(picture);
    } else {
        ui_->picShow->ShowText(tr("None of the pictures can be shown."));
    }
    ui_->lblCaption->setText(ToScreen(reel_.Caption()));
    ui_->picShow->setAccessibleName(ui_->lblCaption->text());
}

/// Restarts the interval: while the show plays, a picture that the user chose stays as long as any
/// other.
void frmPhotoReel::StepByHand(Step step) {
    if (IsPlaying()) player_.start();
    Go(step);
}

void frmPhotoReel::Play(bool on) {
    ui_->cmdPlay->setChecked(on);
    ui_->cmdPlay->setText(on ? tr("Pa&use") : tr("P&lay"));
    if (on) {
        player_.start();
    } else {
        player_.stop();
    }
}

void frmPhotoReel::SwitchFullScreen() {
    const bool isFull = isFullScreen();
    ui_->fraCommands->setVisible(isFull);
    if (isFull) {
        showNormal();
    } else {
        showFullScreen();
        ui_->picShow->setFocus();
    }
}

void frmPhotoReel::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Right:
        case Qt::Key_Down:
        case Qt::Key_PageDown:
        case Qt::Key_Space:
            StepByHand(&Reel::Next);
            break;
        case Qt::Key_Left:
        case Qt::Key_Up:
        case Qt::Key_PageUp:
        case Qt::Key_Backspace:
            StepByHand(&Reel::Previous);
            break;
        case Qt::Key_Home:
            StepByHand(&Reel::First);
            break;
        case Qt::Key_End:
            StepByHand(&Reel::Last);
            break;
        case Qt::Key_P:
            if (!reel_.IsEmpty()) Play(!IsPlaying());
            break;
        case Qt::Key_F:
        case Qt::Key_F11:
            SwitchFullScreen();
            break;
        case Qt::Key_Escape:
            if (isFullScreen()) {
                SwitchFullScreen();
            } else {
                close();
            }
            break;
        default:
            QWidget::keyPressEvent(event);
            break;
    }
}

} // namespace photoreel
