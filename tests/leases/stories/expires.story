# A term that ends with "Expire" frees the unit on the day after, and charges stop that day.
given
  DateRenewed = 02/15/2023
  ExpireOption = Expire
when
  today 04/01/2024
then
  01/01/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 01/01/2024
  02/01/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 02/01/2024
  Status = Expired
  RentStatus = n/a
  DateUpdated = 04/01/2024
  unit = Avaliable
  tenant = Archived
