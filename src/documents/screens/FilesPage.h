#pragma once

namespace documents::screens {

/// Adds the page "Files and Pictures" to the form of every record that can have files. A form of
/// several records, as of a building and its unit, has a choice between their files there.
void RegisterFilesPage();

} // namespace documents::screens
