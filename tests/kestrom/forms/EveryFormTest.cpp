#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScreen>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>
#include <functional>
#include <set>

#include "core/FormPosition.h"
#include "core/binding/Binding.h"
#include "kestrom/forms/LookChecks.h"
#include "kestrom/forms/Openings.h"
#include "platform/qt/Text.h"
#include "support/screens/ColorChecks.h"
#include "support/screens/Driving.h"
#include "support/screens/Gallery.h"
#include "support/screens/ScreenChecks.h"

namespace support {
namespace {

using core::forms::Form;
using testing::IsEmpty;
using Faults = std::set<std::string>;

using tests::Opening;

/// How the forms look and are walked through by keyboard.
class EveryForm : public tests::EveryForm {
  protected:
    static bool IsEntry(const QWidget& widget) {
        if (const auto* const line = qobject_cast<const QLineEdit*>(&widget))
            return !line->isReadOnly();
        if (const auto* const text = qobject_cast<const QPlainTextEdit*>(&widget))
            return !text->isReadOnly();
        return qobject_cast<const QComboBox*>(&widget) != nullptr;
    }
    static bool CanEnter(const QWidget& widget) {
        return IsEntry(widget) && widget.isVisible() && widget.isEnabled() &&
               (widget.focusPolicy() & Qt::TabFocus) != 0;
    }
    static bool Scrolls(const QWidget& control) {
        for (const QWidget* at = control.parentWidget(); at; at = at->parentWidget())
            if (qobject_cast<const QScrollArea*>(at)) return true;
        return false;
    }

    /// The window lies on the screen, and what doesn't scroll lies in the window.
    static Faults PlaceFaults(const Form& form, const std::string& name) {
        Faults faults;
        const QRect screen = form.screen()->availableGeometry();
        if (!screen.contains(form.frameGeometry())) {
            faults.insert(name + " has " + std::to_string(form.frameGeometry().width()) + "x" +
                          std::to_string(form.frameGeometry().height()));
        }
        for (const QWidget* const control : form.findChildren<QWidget*>()) {
            const bool acts = qobject_cast<const QAbstractButton*>(control) || IsEntry(*control);
            if (!acts || !control->isVisible() || control->window() != &form) continue;
            if (Scrolls(*control) || control->objectName().startsWith(QLatin1String("qt_")))
                continue;
            const QRect place(control->mapTo(&form, QPoint(0, 0)), control->size());
            if (form.rect().contains(place)) continue;
            faults.insert(name + ": " + FromScreen(control->objectName()) + " can't be reached");
        }
        return faults;
    }
    static Faults FocusFaults(const Form& form, const std::string& name) {
        const QWidget* const focus = form.focusWidget();
        if (focus && (CanEnter(*focus) || qobject_cast<const QAbstractItemView*>(focus))) return {};
        for (const QWidget* const control : form.findChildren<QWidget*>()) {
            if (!CanEnter(*control) || control->window() != &form) continue;
            return {name + " opens on " + (focus ? FromScreen(focus->objectName()) : "nothing") +
                    " rather than " + FromScreen(control->objectName())};
        }
        return {};
    }

    /// Controls without a name, and controls whose text is cut off.
    static Faults LookFaults(const Form& form, const std::string& name) {
        Faults faults;
        for (const std::string& fault : tests::NamelessFaults(form))
            faults.insert(name + ": " + fault);
        for (const std::string& fault : tests::ClippingFaults(form))
            faults.insert(name + ": " + fault);
        for (const std::string& fault : ColorFaults(form))
            faults.insert(name + ": " + fault);
        return faults;
    }
    /// Calls `look` for each page of the form's tabs, or once, and for each tab of the panels
    /// there.
    static void OnEachPage(Form& form, const std::function<void()>& look) {
        auto* const tabs = form.findChild<QTabWidget*>();
        for (int page = 0; page < (tabs ? tabs->count() : 1); ++page) {
            if (tabs) tabs->setCurrentIndex(page);
            support::SettleEvents();
            look();
            for (QTabBar* const panel : form.findChildren<QTabBar*>()) {
                if (!panel->isVisible() ||
                    (tabs && tabs->isAncestorOf(panel) && panel->parentWidget() == tabs))
                    continue;
                for (int tab = 1; tab < panel->count(); ++tab) {
                    if (!panel->isTabVisible(tab) || !panel->isTabEnabled(tab)) continue;
                    panel->setCurrentIndex(tab);
                    support::SettleEvents();
                    look();
                }
            }
        }
    }
    /// Opens each form on the large screen with texts of so many times their usual size.
    void WalkOnALargeScreen(int times, const std::function<Faults(const Form& form)>& more) {
        const QFont usual = QApplication::font();
        QFont font = usual;
        font.setPointSizeF(usual.pointSizeF() * times);
        QApplication::setFont(font);
        Faults faults;
        for (const Opening& opening : Openings()) {
            opening.open();
            support::SettleEvents();
            ASSERT_EQ(Open().size(), 1U) << opening.name;
            Form& form = *Open().front();
            OnEachPage(form, [&] {
                faults.merge(PlaceFaults(form, opening.name));
                faults.merge(LookFaults(form, opening.name));
                for (const std::string& fault : more(form))
                    faults.insert(opening.name + ": " + fault);
            });
            form.CloseUnasked();
            support::SettleEvents();
        }
        QApplication::setFont(usual);
        EXPECT_THAT(faults, IsEmpty());
    }
    static bool IsScreenLarge() { return QGuiApplication::primaryScreen()->size().width() >= 1920; }
};

TEST_F(EveryForm, FitsTheScreenAndOpensOnItsFirstEntry) {
    std::set<std::string> faults;
    std::set<std::string> unseen = FormsOfTheProgram();
    for (const Opening& opening : Openings()) {
        // The second time from a place that was stored on a larger screen.
        for (const char* const time : {"", " again"}) {
            const std::string name = opening.name + time;
            opening.open();
            SettleEvents();
            ASSERT_EQ(Open().size(), 1U) << name;
            Form& form = *Open().front();
            faults.merge(FocusFaults(form, name));
            int page = 0;
            OnEachPage(form, [&] {
                faults.merge(PlaceFaults(form, name));
                faults.merge(LookFaults(form, name));
                // A picture for people: of each form once, and of a record rather than a new one.
                const bool isPictured = *time == '\0' && !name.starts_with("new ");
                const std::string picture = "form-" + name + "-" + std::to_string(++page);
                for (const auto& kind :
                     {TabOrderFaults(form), MnemonicFaults(form), NameFaults(form),
                      isPictured ? Portray(form, picture) : std::vector<std::string>()}) {
                    for (const std::string& fault : kind)
                        faults.insert(name + ": " + fault);
                }
            });
            const std::string key = FromScreen(form.objectName());
            unseen.erase(key);
            form.CloseUnasked();
            SettleEvents();
            ASSERT_THAT(Open(), IsEmpty()) << name;
            core::SaveForm(key, core::WindowState::Normal, {-30, 200, 3000, 2000});
        }
    }
    EXPECT_THAT(faults, IsEmpty());
    EXPECT_THAT(unseen, IsEmpty()) << "this walk doesn't open them";
}

// The size that texts have on a screen at 200 %, and the room that 1920x1080 has for them.
TEST_F(EveryForm, ShowsAllOfItsTextsAtTwiceTheSize) {
    if (!IsScreenLarge()) GTEST_SKIP() << "a run of its own has the screen for it";
    WalkOnALargeScreen(2, [](const Form&) { return Faults(); });
}

TEST_F(EveryForm, ScrollsNothingSidewaysAndMarksAWrongDateNotByColourAlone) {
    if (!IsScreenLarge()) GTEST_SKIP() << "a run of its own has the screen for it";
    WalkOnALargeScreen(1, [](const Form& form) {
        Faults faults;
        for (const std::string& fault : tests::WidthFaults(form))
            faults.insert(fault);
        for (const std::string& fault : tests::DateFaults(form))
            faults.insert(fault);
        return faults;
    });
}

} // namespace
} // namespace support
