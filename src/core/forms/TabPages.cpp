#include "core/forms/TabPages.h"

#include <QAbstractButton>

namespace core::forms {

void PutLastInTabOrder(QWidget& form, const QWidget& bar) {
    QWidget* last = form.previousInFocusChain();
    while (last != &form && (last->focusPolicy() & Qt::TabFocus) == 0)
        last = last->previousInFocusChain();
    for (auto* const button : bar.findChildren<QAbstractButton*>()) {
        if (last != button) QWidget::setTabOrder(last, button);
        last = button;
    }
}

} // namespace core::forms
