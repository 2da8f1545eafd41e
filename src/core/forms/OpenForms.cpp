#include "core/forms/OpenForms.h"

#include <QPointer>
#include <algorithm>
#include <ranges>
#include <vector>

#include "core/EditRecord.h"
#include "core/MessagePump.h"
#include "core/forms/Form.h"

namespace core::forms {

namespace {

std::vector<QPointer<Form>>& Forms() {
    static std::vector<QPointer<Form>> forms;
    return forms;
}

} // namespace

void AddOpenForm(Form& form) {
    std::erase_if(Forms(), [](const QPointer<Form>& gone) { return gone.isNull(); });
    Forms().emplace_back(&form);
}

void BringToFront(Form& form) {
    if (form.isMinimized()) form.showNormal();
    form.raise();
    form.activateWindow();
}

bool BringToFront(std::int32_t id) {
    for (const QPointer<Form>& form : Forms()) {
        if (!form || id == 0 || form->OpenRecordId() != id) continue;
        if (form->isEnabled()) BringToFront(*form);
        return true;
    }
    return false;
}

bool MayCloseAllForms() {
    const std::vector<QPointer<Form>> forms = Forms();
    return std::all_of(forms.rbegin(), forms.rend(),
                       [](const QPointer<Form>& form) { return !form || form->AskToClose(); });
}

void CloseAllForms() {
    // Closing a form may close others, so each pointer is checked before it is used.
    const std::vector<QPointer<Form>> forms = Forms();
    for (const QPointer<Form>& form : forms | std::views::reverse) {
        if (!form) continue;
        form->CloseUnasked();
        LetMessagesRun();
    }
}

void RegisterOpenForms() {
    RegisterOpenRecords([](std::int32_t id) { return BringToFront(id); });
}

} // namespace core::forms
