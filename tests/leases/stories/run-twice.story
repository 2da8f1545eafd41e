# A second start on the same day posts nothing; a clock set back walks no day.
given
when
  today 01/01/2024
  today 01/01/2024
  today 12/15/2023
then
  01/01/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 01/01/2024
  DateUpdated = 01/01/2024
  RentStatus = OK
