#include "core/forms/Help.h"

#include <QWidget>
#include <utility>

namespace core::forms {

namespace {

HelpOpener& Opener() {
    static HelpOpener opener;
    return opener;
}

} // namespace

void SetHelpOpener(HelpOpener opener) {
    Opener() = std::move(opener);
}

void ShowHelp(QWidget& form) {
    ShowHelpTopic(form, form.objectName());
}

void ShowHelpTopic(QWidget& form, const QString& topic) {
    if (Opener()) Opener()(&form, topic);
}

} // namespace core::forms
