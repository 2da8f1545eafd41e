#pragma once

namespace reports::screens {

/// Gives every record form the menus of its reports and receipts: what the catalogue holds for the
/// form when the menu opens.
void RegisterReportMenus();

} // namespace reports::screens
