# After notice rent is still charged up to the vacating date, and the lease is over on the day after.
given
  Status = Notice
  DateVacating = 02/01/2024
when
  today 03/01/2024
then
  01/01/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 01/01/2024
  02/01/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 02/01/2024
  Status = Expired
  unit = Avaliable
  tenant = Archived
