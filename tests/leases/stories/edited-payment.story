# A stored payment shows what it settled and, on request, what is open. An edit gives back what is
# unticked and takes what is ticked, and never moves the due date.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
  charge fee 40 on 01/09/2024
  pay rent
  charge fee 8 on 01/20/2024
then
  charges of 1
    -> x 1000 on 01/01/2024
    -> x 40 on 01/09/2024
    -> - 8 on 01/20/2024
    -> 1,040.00 from O'Brien, Ann to First Bank
  outlook of payment 1 -> 2 charges, next due date stays 02/01/2024
when
  edit payment 1, only 2 3
then
  01/01/2024 | 1.1 | 'Rent' | 1,000.00 | 1000 on 01/01/2024
  01/09/2024 | 1.0 | 'Fee' | 40.00 | 40 on 01/09/2024 | paid
  03/05/2024 | 1.2 | 'Rent Payment' | (48.00) | Rent Payment | paid
  01/20/2024 | 1.0 | 'Fee' | 8.00 | 8 on 01/20/2024 | paid
  SELECT Amount FROM Transactions -> 48
  DateNextDue = 02/01/2024
when
  edit payment 1, only 1 2 3
then
  DateNextDue = 02/01/2024
when
  edit payment 999999 -> refused: ...
# Edited to nothing a payment keeps its row at 0.00, and never gets another.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
  pay rent
when
  edit payment 1, only none
then
  SELECT Amount FROM RentLog WHERE Flags = 2 -> 0
when
  edit payment 1, only 1
then
  SELECT Amount FROM RentLog WHERE Flags = 2 -> -1000
# An edit rewrites what was entered and keeps that a side was exported.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
  pay rent
  UPDATE Transactions SET CreditExported = True
when
  edit payment 1, on 03/31/2024, as Partial Rent Payment, from account 106
then
  SELECT DateEffective, TaxCategory, DebitType, DebitDesc, IdTenant, CreditExported, DebitExported
    FROM Transactions
    -> 03/31/2024|Partial Rent Payment|1|Housing Aid|106|True|False
  SELECT DatePosted, Category FROM RentLog WHERE Flags = 2 -> 03/31/2024|Partial Rent Payment
# The payment of a deleted lease keeps its unit and building when it is edited.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
  pay rent
when
  DELETE * FROM Lease
  edit payment 1, check 18
then
  SELECT CheckNum, IdUnit, IdBuilding, IdLease FROM Transactions -> 18|102|104|101
# A payment that was deleted comes back under its number, with its row.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
  pay rent
  open payment first of 1
when
  DELETE * FROM Transactions
  DELETE * FROM RentLog WHERE Flags = 2
  submit first
then
  SELECT IdTransaction, Amount FROM Transactions -> 1001|1000
  SELECT Amount FROM RentLog WHERE Flags = 2 -> -1000
