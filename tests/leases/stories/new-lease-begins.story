# A pending lease begins on its day: unit and tenant follow, and the first rent falls due.
given
  Status = Pending
  DateActive = 02/29/2024
  DateRenewed = 02/29/2024
  DateNextDue = 02/29/2024
  DateUpdated = NULL
when
  today 02/28/2024
  today 03/29/2024
then
  02/29/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 02/29/2024
  03/29/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 03/29/2024
  Status = Contracted
  DateUpdated = 03/29/2024
  unit = Leased
  tenant = Current
