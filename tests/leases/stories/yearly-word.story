# A lease of "Year(s)" is charged every month, though a payment moves its due date by a year.
given
  TermType = Year(s)
  Term = 1
when
  today 02/01/2024
  pay rent
  today 03/02/2024
then
  01/01/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 01/01/2024 | paid
  02/01/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 02/01/2024 | paid
  02/01/2024 | 1.2 | 'Rent Payment' | (2,000.00) | Rent Payment | paid
  DateNextDue = 01/01/2026
