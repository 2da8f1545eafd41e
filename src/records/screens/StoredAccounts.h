#pragma once

#include <cstdint>
#include <initializer_list>

#include "platform/database/Recordset.h"

class QComboBox;

namespace records::screens {

// Lists of the accounts of one type, or of none. An account that a record names stays in its list
// when it isn't of that type: saving the record again must not lose it. An account that has gone is
// dropped.

/// Fills a list; the selected account stays so.
void FillAccountList(std::int16_t kind, QComboBox& list);
/// Lets the lists offer what the row has in the fields of their tags.
void OfferStoredAccounts(std::initializer_list<QComboBox*> lists, platform::Recordset& row);

} // namespace records::screens
