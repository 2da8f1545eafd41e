#pragma once

#include <QTreeWidgetItem>
#include <cstdint>
#include <vector>

#include "exchange/FinExportSettings.h"

class QTreeWidget;

namespace exchange::screens {

// The accounts of the financial export, each with a check box; its id is the property of the row
// that AccountOf reads.

enum class ShowCount { No, Yes };

std::int32_t AccountOf(const QTreeWidgetItem& row);
/// The checked accounts from the top.
std::vector<std::int32_t> CheckedAccounts(const QTreeWidget& list);
void CheckAll(QTreeWidget& list, Qt::CheckState state);

/// Reads the accounts again; those that are checked stay so.
void FillAccounts(QTreeWidget& list);
/// Counts what the export of each account would take, or hides the counts.
void FillCounts(QTreeWidget& list, const ExportRange& range, ShowCount show);

} // namespace exchange::screens
