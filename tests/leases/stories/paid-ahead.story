# Rolling forward posts the next period's rent less the discount for paying early; the due dates
# that were paid ahead aren't charged again.
given
  Discount = 30
  DateUpdated = 12/20/2023
when
  roll forward
  pay rent
  daily 01/31/2024
then
  12/27/2023 | 1.0 | 'Rent Discount' | (30.00) | Discount for rent due 01/01/2024 | paid
  01/01/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 01/01/2024 | paid
  12/31/2023 | 1.2 | 'Rent Payment' | (970.00) | Rent Payment | paid
  DateNextDue = 02/01/2024
  DateUpdated = 01/31/2024
  RentStatus = OK
