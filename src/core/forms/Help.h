#pragma once

#include <QString>
#include <functional>

class QWidget;

namespace core::forms {

/// Shows a page of the help ("frmOwnerLink", "contents") over the window that asks.
using HelpOpener = std::function<void(QWidget* owner, const QString& topic)>;

/// The topic that stands for looking for words rather than for a page.
inline constexpr const char* kHelpSearch = "search";

/// Gives the process its help window; without one nothing is shown.
void SetHelpOpener(HelpOpener opener);

/// The page of a form, which has the form's name.
void ShowHelp(QWidget& form);
void ShowHelpTopic(QWidget& form, const QString& topic);

} // namespace core::forms
