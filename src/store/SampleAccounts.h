#pragma once

#include "store/SampleBooks.h"

namespace store {

/// Writes accounts of every type, with a contact for some.
void WriteSampleAccounts(SampleBooks& books);

} // namespace store
