#include "core/forms/WindowPlace.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include "core/forms/FormPlace.h"
#include "platform/qt/Text.h"

namespace core::forms {

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

void RestoreWindow(QWidget& window, FormSizing sizing) {
    const FormPlacement stored = RestoreForm(platform::qt::FromScreen(window.objectName()), sizing);
    if (stored.place) {
        FormRectangle wanted = *stored.place;
        if (!stored.appliesSize) {
            wanted.width = window.width();
            wanted.height = window.height();
        }
        const FormRectangle place = RescuedPlace(wanted, Screens());
        window.move(place.left, place.top);
        if (stored.appliesSize) window.resize(place.width, place.height);
    }
    if (stored.state == WindowState::Maximized) window.setWindowState(Qt::WindowMaximized);
    if (stored.state == WindowState::Minimized) window.setWindowState(Qt::WindowMinimized);
}

void SaveWindow(const QWidget& window) {
    WindowState state = WindowState::Normal;
    if (window.isMaximized()) state = WindowState::Maximized;
    if (window.isMinimized()) state = WindowState::Minimized;
    SaveForm(platform::qt::FromScreen(window.objectName()), state,
             ToPlace(QRect(window.pos(), window.size())));
}

} // namespace core::forms
