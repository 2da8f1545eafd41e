#pragma once

#include <QTreeWidgetItem>
#include <cstdint>
#include <vector>

#include "exchange/FinExportSettings.h"

class QTreeWidget;

namespace exchange::screens {

// The accounts of the financial export, a check box each. AccountOf returns the id of a row.

enum class ShowCount { No, Yes };

std::int32_t AccountOf(const QTreeWidgetItem& row);
/// Returns the checked accounts from top to bottom.
std::vector<std::int32_t> CheckedAccounts(const QTreeWidget& list);
void CheckAll(QTreeWidget& list, Qt::CheckState state);

/// Reads the accounts again; the checked ones stay checked.
void FillAccounts(QTreeWidget& list);
/// Shows how many transactions of each account would be exported, or hides the counts.
void FillCounts(QTreeWidget& list, const ExportRange& range, ShowCount show);

} // namespace exchange::screens
