# What the sessions share: new books in the folder, registered, so that no command has to name them.

NewBooks() {
    vestrelctl "$@" init books && vestrelctl register books
}

# Books with a tenant, three accounts and a lease of 1,000.00 a month, charged up to 12/31/2023, or
# with a lender, a bank and a mortgage of 12,000.00 over a year at 12 percent.
BooksOf() { # payment | mortgage
    NewBooks && vestrelctl --today 12/31/2023 update >/dev/null &&
        vestrelctl sql - <"$TESTS/$1-books.sql" >/dev/null
}

SampleBooks() { # TODAY UNITS
    vestrelctl --today "$1" init --sample --units "$2" books && vestrelctl register books
}

# The rows of a select, without the line of names.
Ask() {
    vestrelctl sql "$1" | tail -n +2
}
