# What is over becomes a credit, which settles rent and fees on their days as far as it goes. The
# rest of a rent keeps the due date and brings the fees.
given
  OneTimeFee = 25
  DateUpdated = 12/31/2023
when
  settle from credit yes
  today 01/01/2024
  pay amount 2300
  daily 03/07/2024
then
  01/01/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 01/01/2024 | paid
  01/01/2024 | 1.0 | 'Overpayment' | 1,300.00 | Paid ahead on 01/01/2024 | paid
  01/01/2024 | 1.0 | 'Credit' | (300.00) | Credit of 01/01/2024 | paid
  01/01/2024 | 1.2 | 'Rent Payment' | (2,300.00) | Rent Payment | paid
  02/01/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 02/01/2024 | paid
  01/01/2024 | 1.0 | 'Credit' | (1,000.00) | Credit of 01/01/2024 | paid
  03/01/2024 | 1.0 | 'Rent' | 300.00 | Rent due 03/01/2024 | paid
  03/01/2024 | 1.1 | 'Rent' | 700.00 | Deferred Rent due 03/01/2024
  03/06/2024 | 1.0 | 'Late Fee' | 25.00 | Late Fee
  RentDue = 725.00
  DateNextDue = 03/01/2024
  RentStatus = Late
