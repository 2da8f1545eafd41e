#include "core/screens/Form.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QLayout>
#include <QScreen>
#include <QShortcut>

#include "core/screens/FormPlace.h"
#include "core/screens/Help.h"
#include "core/screens/OpenForms.h"
#include "core/screens/Tags.h"
#include "platform/qt/Text.h"

namespace core::screens {

namespace {

FormRectangle ToPlace(const QRect& rect) {
    return {rect.left(), rect.top(), rect.width(), rect.height()};
}

std::vector<FormRectangle> Screens() {
    std::vector<FormRectangle> screens;
    for (const QScreen* const screen : QGuiApplication::screens()) {
        screens.push_back(ToPlace(screen->availableGeometry()));
    }
    return screens;
}

} // namespace

Form::Form(QWidget* parent, FormSizing sizing)
    : QDialog(parent, Qt::Window),
      sizing_(sizing),
      token_([this](std::int16_t kind, std::int16_t action, std::int32_t id) {
          NotifyUpdate(kind, action, id);
      }) {
    setAttribute(Qt::WA_DeleteOnClose);
    auto* const help = new QShortcut(QKeySequence(QKeySequence::HelpContents), this);
    connect(help, &QShortcut::activated, this, [this] { ShowHelp(*this); });
    AddOpenForm(*this);
}

std::int32_t Form::OpenRecordId() const {
    return platform::qt::ToScreen(TagOf(*this)).toInt();
}

void Form::CloseUnasked() {
    asks_ = false;
    close();
}

void Form::reject() {
    close();
}

void Form::Open() {
    Restore();
    show();
}

void Form::NotifyUpdate(std::int16_t /*kind*/, std::int16_t /*action*/, std::int32_t /*id*/) {}

void Form::closeEvent(QCloseEvent* event) {
    if (asks_ && !MayClose()) {
        event->ignore();
        return;
    }
    Save();
    event->accept();
}

void Form::Restore() {
    if (isPlaced_) return;
    isPlaced_ = true;
    if (sizing_ == FormSizing::Fixed && layout())
        layout()->setSizeConstraint(QLayout::SetFixedSize);
    const FormPlacement stored = RestoreForm(platform::qt::FromScreen(objectName()), sizing_);
    if (stored.place) {
        FormRectangle wanted = *stored.place;
        if (!stored.appliesSize) {
            wanted.width = width();
            wanted.height = height();
        }
        const FormRectangle place = RescuedPlace(wanted, Screens());
        move(place.left, place.top);
        if (stored.appliesSize) resize(place.width, place.height);
    }
    if (stored.state == WindowState::Maximized) setWindowState(Qt::WindowMaximized);
    if (stored.state == WindowState::Minimized) setWindowState(Qt::WindowMinimized);
}

void Form::Save() const {
    WindowState state = WindowState::Normal;
    if (isMaximized()) state = WindowState::Maximized;
    if (isMinimized()) state = WindowState::Minimized;
    SaveForm(platform::qt::FromScreen(objectName()), state, ToPlace(QRect(pos(), size())));
}

} // namespace core::screens
