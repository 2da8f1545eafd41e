#pragma once

namespace reports::screens {

/// Adds to every record form the menus of its reports and receipts, filled from the catalogue
/// whenever they open.
void RegisterReportMenus();

} // namespace reports::screens
