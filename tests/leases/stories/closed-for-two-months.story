# A program that was closed for two months charges each due date on its own day.
given
  Rent = 1000
when
  today 03/05/2024
then
  01/01/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 01/01/2024
  02/01/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 02/01/2024
  03/01/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 03/01/2024
  Status = MTM
  RentStatus = Eviction
  RentDue = 3,000.00
  DateNextDue = 01/01/2024
  DateUpdated = 03/05/2024
