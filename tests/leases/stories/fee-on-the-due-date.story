# With no days of grace the one-time fee falls with the rent, once.
given
  OneTimeFee = 25
  OneTimeDays = 0
when
  today 01/20/2024
then
  01/01/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 01/01/2024
  01/01/2024 | 1.0 | 'Late Fee' | 25.00 | Late Fee
  RentStatus = Late
