# Due on the 31st: each step clamps to the month it reaches, and the day stays clamped from there.
given
  DateActive = 12/31/2023
  DateRenewed = 12/31/2023
  DateNextDue = 12/31/2023
  DateUpdated = 12/30/2023
when
  today 05/30/2024
then
  12/31/2023 | 1.1 | 'Rent' | 1,000.00 | Rent due 12/31/2023
  01/31/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 01/31/2024
  02/29/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 02/29/2024
  03/29/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 03/29/2024
  04/29/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 04/29/2024
  05/29/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 05/29/2024
  RentDue = 6,000.00
