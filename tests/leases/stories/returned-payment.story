# A returned payment opens its charges again, withdraws the option credit, takes the due date back,
# charges the fee, and is marked.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  Option = True
  OptionCredit = 50
  charge rent 1000 on 01/01/2024
  charge fee 40 on 01/09/2024
  charge rent 1000 on 02/01/2024
  pay rent
  it is 03/12/2024
then
  DateNextDue = 03/01/2024
  preview return of 1, fee 25
    -> Transaction (2,040.00)
    -> Charge open again 1,000.00
    -> Charge open again 40.00
    -> Charge open again 1,000.00
    -> In the place of the charges 2,040.00
    -> Settled by the return (2,040.00)
    -> Payment in the ledger 2,040.00
    -> Fee charged 25.00
    -> Option credit withdrawn (100.00)
    -> Next due date 0.00
    -> Payment marked 0.00
when
  return payment 1, fee 25
then
  SELECT DateEffective, TaxCategory, DebitDesc, CreditDesc, Description FROM Transactions
    ORDER BY IdTransaction
    -> 03/05/2024|Rent Payment|O'Brien, Ann|First Bank|Returned 03/12/2024: Rent Payment for
    O'Brien, 12 Elm Street A
    -> 03/12/2024|Rent Payment|O'Brien, Ann|First Bank|Return of 03/05/2024: Rent Payment for
    O'Brien, 12 Elm Street A
  SELECT Sum(Amount) FROM Transactions WHERE IEN = 0 AND CreditId = 105 -> 0
  DateNextDue = 01/01/2024
  RentDue = 2,065.00
  OptionBalance = 0.00
  RentStatus = Eviction
  SELECT DatePosted, Description, Amount, IdTransaction, Flags, Class FROM RentLog
    WHERE Category = 'NSF Fee'
    -> 03/12/2024|Payment of 03/05/2024 returned|25|0|0|1
# A returned subsidy or deposit is owed again to the cent, and a fee is never a deposit.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge <class> 800 on 01/01/2024
  pay <class>
when
  return payment 1, fee 15
then
  owed -> other 815
  DateNextDue = 01/01/2024
  SELECT Class FROM RentLog WHERE Category = 'NSF Fee' -> <fee class>
  DepositDue = <deposit due>
  DepositBalance = 0.00
  SELECT Sum(Amount) FROM Transactions -> 0
  SELECT Count(*) FROM RentLog WHERE Description = '800 on 01/01/2024' AND Amount = 800 -> 1
each
  class | fee class | deposit due
  subsidy | 2 | 0.00
  deposit | 1 | 800.00
# Only money that came in can be returned, and only once: from a screen that was opened before too.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
  pay rent
  open return stale of 1
when
  return payment 1
  return payment 1 -> refused: Transaction 1001 was returned already, by transaction 1003
  return payment 2 -> refused: Transaction 1003 brought no money that could be returned
  return payment 4711 -> refused: There is no transaction 4711
  submit return stale -> refused: ...
  INSERT INTO Transactions (IdTransaction, Class, Flags, Amount, IdLease) VALUES (900, 3, 3, 5, 101)
  INSERT INTO Transactions (IdTransaction, Class, Flags, Amount) VALUES (901, 5, 0, 5)
  return payment 900 -> refused: Transaction 900 is not a payment of a lease
  return payment 901 -> refused: Transaction 901 is not a payment of a lease
# A return names everything that is wrong with it, and is refused for it.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
  pay rent
when
  errors of return 1, on 03/04/2024, fee -1, due
    -> The payment was made on 03/05/2024 and can't be returned before.
    -> The fee can't be less than zero.
    -> A next due date must be specified.
  return payment 1, on 03/04/2024, fee -1, due -> refused: ...
# Paid once more, the first payment can't be returned again, but the second can.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
  pay rent
  return payment 1, fee 25
when
  pay rent
then
  DateNextDue = 02/01/2024
  owed -> nothing is
  the books balance
when
  return payment 1 -> refused: ...
  return payment 3
then
  DateNextDue = 01/01/2024
  owed -> rent 1000, other 25
# Both sides of a return keep their charges: only their texts can be edited, and the mark stays.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
  pay rent
  return payment 1
when
  edit payment <side>, described Of Ann
then
  SELECT Description FROM Transactions WHERE Amount <sign> 0 -> <description>
  the books balance
when
  edit payment <side>, only none -> refused: ...
  edit payment <side>, only 1 2 -> refused: ...
then
  SELECT Sum(Amount) FROM Transactions -> 0
each
  side | sign | description
  1 | > | Returned 03/05/2024: Of Ann
  2 | < | Of Ann
# A return in the next year takes nothing from the income of the old one.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 12/01/2023
  pay rent, on 12/31/2023
when
  return payment 1, on 01/02/2024
then
  SELECT DateEffective, Amount, IEN FROM Transactions ORDER BY IdTransaction
    -> 12/31/2023|1000|0
    -> 01/02/2024|-1000|0
# What is deleted after a return, with or without its rows, leaves owed what the money doesn't cover.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
  pay rent
  return payment 1
when
  delete payment <deleted>
then
  owed -> <owed>
  SELECT Description FROM Transactions -> <left>
  the books balance
each
  deleted | owed | left
  2 | rent 1000, other -1000 | Rent Payment for O'Brien, 12 Elm Street A
  2, with its charges | rent 1000, other -1000 | Rent Payment for O'Brien, 12 Elm Street A
  1 | rent 1000, other 1000 | Return of 03/05/2024: Rent Payment for O'Brien, 12 Elm Street A
  1, with its charges | rent 1000, other 1000 | Return of 03/05/2024: Rent Payment for O'Brien, 12 Elm Street A
# Without the return and its payment, in either order, only the charge is left.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
  pay rent
  return payment 1
when
  delete payment <first>
  delete payment 1<second>
then
  owed -> rent 1000
  SELECT Count(*) FROM RentLog -> 1
  SELECT Count(*) FROM RentCredit -> 0
  the books balance
each
  first | second
  2 |
  1, with its charges | , with its charges
# Without its return a payment can bounce once more.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
  pay rent
  return payment 1
when
  delete payment 2
  return payment 1
then
  DateNextDue = 01/01/2024
# A deleted payment by amount takes its credit along, and what was bought with it is owed.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
  pay amount 1500
  charge fee <fee> on 02/09/2024
  pay amount 10
when
  delete payment 1<how>
then
  owed -> <owed>
each
  fee | how | owed
  10 | | rent 1000
  10 | , with its charges | nothing is
  310 | | rent 1000, other 300
  310 | , with its charges | other 300
# A deleted payment that used credit gives it back.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  pay amount 500
  charge fee 600 on 02/09/2024
  pay amount 100
when
  delete payment 2, with its charges
then
  credit of rent -> 500.00
  the books balance
# A deleted lease leaves nothing of its credits, and its payments can't be returned.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  pay amount 500
  settle from credit yes
when
  delete lease
then
  SELECT Count(*) FROM RentCredit -> 0
  SELECT Count(*) FROM LeaseCredit -> 0
when
  return payment 1 -> refused: The lease of transaction...
