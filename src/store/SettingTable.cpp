#include "store/TableParts.h"

namespace store {

// A setting of the books that the table Configuration has no field for, by its name.
TableDefinition BooksSettingTable() {
    return MakeTable("BooksSetting", {{FieldKind::Text, "Name Content"}});
}

} // namespace store
