# In one long run the one-time fee follows the due date reached, so each later unpaid period has one.
given
  OneTimeFee = 50
when
  today 03/10/2024
then
  01/01/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 01/01/2024
  01/06/2024 | 1.0 | 'Late Fee' | 50.00 | Late Fee
  02/01/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 02/01/2024
  02/06/2024 | 1.0 | 'Late Fee' | 50.00 | Late Fee
  03/01/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 03/01/2024
  03/06/2024 | 1.0 | 'Late Fee' | 50.00 | Late Fee
  RentDue = 3,150.00
