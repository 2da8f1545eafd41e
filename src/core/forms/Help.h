#pragma once

#include <QString>
#include <functional>

class QWidget;

namespace core::forms {

/// Shows a page of the help ("frmOwnerLink", "contents") over its owner's window.
using HelpOpener = std::function<void(QWidget* owner, const QString& topic)>;

/// The topic that opens the search instead of a page.
inline constexpr const char* kHelpSearch = "search";

/// Sets the process's help window; if there is none, ShowHelp does nothing.
void SetHelpOpener(HelpOpener opener);

/// Shows a form's page, which has the form's name.
void ShowHelp(QWidget& form);
void ShowHelpTopic(QWidget& form, const QString& topic);

} // namespace core::forms
