#pragma once

#include <cstdint>
#include <initializer_list>

#include "platform/database/Recordset.h"

class QComboBox;

namespace records::screens {

// Lists of records that a row names by their ids. What a row names stays in its list when it would
// not be offered otherwise: saving the row again must not lose it.

enum class NoneRow { No, Yes };

/// Fills a list of accounts of a type; the selected account stays so.
void FillAccountList(std::int16_t kind, QComboBox& list, NoneRow none = NoneRow::Yes);
/// Lets the lists offer the accounts that the row has in the fields of their tags, but not one that
/// has gone.
void OfferStoredAccounts(std::initializer_list<QComboBox*> lists, platform::Recordset& row);

/// Fills a list of all units; the selected unit stays so, and `proposed` becomes so unless it is 0.
void FillUnitList(QComboBox& list, NoneRow none, std::int32_t proposed = 0);
/// Lets the list offer the unit that the row has in the field of its tag.
void OfferStoredUnit(QComboBox& list, platform::Recordset& row);

} // namespace records::screens
