#pragma once

#include <string>

#include "platform/database/dialect/Catalog.h"

namespace platform::dialect {

/// The tables that the tests of the dialect speak of: a person of every field type and with fields
/// named like words of the grammar, and payments of persons.
const Catalog& TestCatalog();

/// The engine's statements that make them.
std::string TestSchema();

} // namespace platform::dialect
