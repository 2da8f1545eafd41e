# A renewal moves the start of the term and nothing else. Terms long past are renewed one a day.
given
  DateRenewed = 01/01/2020
  ExpireOption = Renew
when
  today 01/02/2024
then
  01/01/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 01/01/2024
  Status = Contracted
  DateRenewed = 01/01/2022
  unit = Hold
