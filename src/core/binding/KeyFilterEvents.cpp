#include "core/binding/KeyFilterEvents.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolTip>

#include "core/binding/KeyFilter.h"
#include "core/binding/Tags.h"

namespace core::binding {

namespace {

constexpr int kNoLimit = 32767; // the length of a line edit without a limit of its own

char32_t Filtered(const QLineEdit& edit, char32_t key) {
    const std::string tag = TagOf(edit);
    const std::u32string text = edit.text().toStdU32String();
    KeyedBox box;
    box.tag = tag;
    box.text = text;
    // Typed text replaces the selection from its start, wherever the caret is in it.
    box.caret = static_cast<std::size_t>(edit.hasSelectedText() ? edit.selectionStart()
                                                                : edit.cursorPosition());
    box.selected = static_cast<std::size_t>(edit.selectedText().size());
    if (edit.maxLength() < kNoLimit) box.maxLength = static_cast<std::size_t>(edit.maxLength());
    return FilterKey(box, key);
}

constexpr const char* kRefusing = "refusing";

/// Returns true for an operator or sign, which a number box visibly refuses, and for what is typed
/// after it until the user does something else: "12+3" must not become 123.
bool RefusesSum(QLineEdit& edit, const QString& text) {
    constexpr std::string_view kNumbers = "#&$%";
    const std::string tag = TagOf(edit);
    if (tag.empty() || kNumbers.find(tag.front()) == std::string_view::npos) return false;
    const QString operators = QStringLiteral("+-*/=()");
    const bool isOperator = text.size() == 1 && operators.contains(text);
    if (isOperator) edit.setProperty(kRefusing, !edit.text().isEmpty());
    if (!isOperator && !edit.property(kRefusing).toBool()) return false;
    QApplication::beep();
    QToolTip::showText(
        edit.mapToGlobal(QPoint(0, edit.height())),
        QLineEdit::tr("Only digits and a point can be typed here: no sums and no signs."), &edit);
    return true;
}

/// Types the characters that pass the filter, such as the capital of a letter. Returns false, and
/// types nothing, for a single character that passes unchanged.
bool TakesOver(QLineEdit& edit, const QString& text) {
    const std::u32string keys = text.toStdU32String();
    for (const char32_t key : keys) {
        const char32_t passed = Filtered(edit, key);
        if (passed == key && keys.size() == 1) return false;
        if (passed != kNoKey) edit.insert(QString::fromUcs4(&passed, 1));
    }
    return true;
}

} // namespace

bool KeyFilterEvents::eventFilter(QObject* watched, QEvent* event) {
    auto* const edit = qobject_cast<QLineEdit*>(watched);
    if (!edit || edit->isReadOnly()) return false;
    if (event->type() == QEvent::KeyPress) {
        const auto* const press = static_cast<QKeyEvent*>(event);
        const QString text = press->text();
        const bool isCommand = press->modifiers() & (Qt::ControlModifier | Qt::AltModifier) &&
                               !(press->modifiers() & Qt::GroupSwitchModifier);
        if (isCommand || text.isEmpty() || !text.front().isPrint()) {
            edit->setProperty(kRefusing, false);
            return false;
        }
        return RefusesSum(*edit, text) || TakesOver(*edit, text);
    }
    if (event->type() == QEvent::InputMethod) {
        const QString text = static_cast<QInputMethodEvent*>(event)->commitString();
        return !text.isEmpty() && (RefusesSum(*edit, text) || TakesOver(*edit, text));
    }
    if (event->type() == QEvent::FocusOut || event->type() == QEvent::MouseButtonPress) {
        edit->setProperty(kRefusing, false);
    }
    return false;
}

void InstallKeyFilter(QWidget& form) {
    constexpr std::string_view kFiltering = "#&$%^@-";
    auto* const filter = new KeyFilterEvents(&form);
    for (QLineEdit* const edit : form.findChildren<QLineEdit*>()) {
        const std::string tag = TagOf(*edit);
        if (!tag.empty() && kFiltering.find(tag.front()) != std::string_view::npos) {
            edit->installEventFilter(filter);
        }
    }
}

} // namespace core::binding
