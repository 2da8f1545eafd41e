# A check without cover: the rents are open again, the due date goes back, and the bank's fee is
# charged. What fell due in the meantime stays as it was posted.
when
  today 02/02/2024
  pay rent
  daily 02/10/2024
  return payment, fee 15
then
  01/01/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 01/01/2024
  02/01/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 02/01/2024
  02/02/2024 | 1.2 | 'Rent Payment' | (2,000.00) | Rent Payment | paid
  02/10/2024 | 1.0 | 'Returned Payment' | 2,000.00 | Returned 02/10/2024 | paid
  02/10/2024 | 1.0 | 'Returned Payment' | (2,000.00) | Return of the payment of 02/02/2024 | paid
  02/10/2024 | 1.2 | 'Rent Payment' | 2,000.00 | Rent Payment | paid
  02/10/2024 | 1.0 | 'NSF Fee' | 15.00 | Payment of 02/02/2024 returned
  RentDue = 2,015.00
  DateNextDue = 01/01/2024
  RentStatus = Warning
