#include "core/binding/Wiring.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>

#include "core/binding/Binding.h"
#include "core/binding/KeyFilterEvents.h"
#include "core/binding/Tags.h"

namespace core::binding {

namespace {

bool HoldsNumber(const QObject& control) {
    constexpr std::string_view kNumbers = "#&$%";
    const std::string tag = TagOf(control);
    return !tag.empty() && kNumbers.find(tag.front()) != std::string_view::npos;
}

/// Makes the wheel scroll the page rather than change a list, date or number that happens to be
/// under the pointer.
class WheelGuard : public QObject {
  public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* const control = qobject_cast<QWidget*>(watched);
        if (event->type() != QEvent::Wheel || !control || control->hasFocus()) return false;
        event->ignore();
        return true;
    }
};

/// Gives a read-only box the colour of the page around it, also after the program has changed
/// between light and dark.
class ReadOnlyLook : public QObject {
  public:
    explicit ReadOnlyLook(QWidget& box) : QObject(&box) {
        box.installEventFilter(this);
        Apply(box);
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ReadOnlyChange) {
            Apply(*static_cast<QWidget*>(watched));
        }
        return false;
    }

  private:
    static void Apply(QWidget& box) {
        const bool isReadOnly = box.property("readOnly").toBool();
        const QColor ground =
            QApplication::palette().color(isReadOnly ? QPalette::Window : QPalette::Base);
        if (box.palette().color(QPalette::Base) == ground) return;
        QPalette look = box.palette();
        look.setColor(QPalette::Base, ground);
        box.setPalette(look);
    }
};

QString WithoutMarks(QString text) {
    return text.remove(QLatin1Char('&')).remove(QLatin1Char(':')).trimmed();
}

} // namespace

void WireControls(QWidget& form) {
    InstallKeyFilter(form);
    auto* const wheel = new WheelGuard(&form);
    for (QWidget* const control : ControlsOf(form)) {
        if (auto* const combo = qobject_cast<QComboBox*>(control)) {
            combo->setInsertPolicy(QComboBox::NoInsert);
            combo->setFocusPolicy(Qt::StrongFocus); // not by the wheel
            combo->installEventFilter(wheel);
        } else if (auto* const line = qobject_cast<QLineEdit*>(control)) {
            if (HoldsNumber(*line)) line->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            if (line->isReadOnly()) new ReadOnlyLook(*line);
        } else if (auto* const page = qobject_cast<QPlainTextEdit*>(control)) {
            page->setTabChangesFocus(true);
            if (page->isReadOnly()) new ReadOnlyLook(*page);
        } else if (auto* const spin = qobject_cast<QAbstractSpinBox*>(control)) {
            spin->setFocusPolicy(Qt::StrongFocus);
            spin->installEventFilter(wheel);
        } else if (const auto* const label = qobject_cast<QLabel*>(control)) {
            QWidget* const named = label->buddy();
            if (named && named->accessibleName().isEmpty()) {
                named->setAccessibleName(WithoutMarks(label->text()));
            }
        }
    }
}

void ConnectChanges(QWidget& form, QObject& context, const std::function<void()>& changed) {
    for (QWidget* const control : ControlsOf(form)) {
        if (control->property("noDirty").toBool()) continue;
        if (auto* const line = qobject_cast<QLineEdit*>(control)) {
            QObject::connect(line, &QLineEdit::textChanged, &context, changed);
        } else if (auto* const page = qobject_cast<QPlainTextEdit*>(control)) {
            QObject::connect(page, &QPlainTextEdit::textChanged, &context, changed);
        } else if (auto* const combo = qobject_cast<QComboBox*>(control)) {
            QObject::connect(combo, &QComboBox::currentIndexChanged, &context, changed);
            QObject::connect(combo, &QComboBox::editTextChanged, &context, changed);
        } else if (auto* const list = qobject_cast<QListWidget*>(control)) {
            QObject::connect(list, &QListWidget::currentRowChanged, &context, changed);
        } else if (auto* const group = qobject_cast<QGroupBox*>(control)) {
            QObject::connect(group, &QGroupBox::toggled, &context, changed);
        } else if (auto* const button = qobject_cast<QAbstractButton*>(control)) {
            QObject::connect(button, &QAbstractButton::toggled, &context, changed);
        }
    }
}

} // namespace core::binding
