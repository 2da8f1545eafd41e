#pragma once

#include <string>

#include "platform/database/dialect/Catalog.h"

namespace platform::dialect {

/// The tables of the tests of the dialect: a person of every field type and with fields
/// named like words of the grammar, and payments of persons.
const Catalog& TestCatalog();

/// The engine's statements that make them.
std::string TestSchema();

} // namespace platform::dialect
