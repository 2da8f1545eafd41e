# A payment is returned whose credit was spent: the due date goes back to where it was, and what the
# credit had paid is open again. An open rest keeps the due date; a paid part never moved it. Paid
# once more, the rents move the due date on.
given
  it is 01/02/2024
  DateUpdated = 01/02/2024
  Option = True
  OptionCredit = 50
  charge rent 1000 on 01/01/2024
  # Events that wait for the tenant's payments post rows in the midst of each.
  INSERT INTO AutoEvent (IdAutoEvent, EventType, Enabled, EventAction, TriggerType, TriggerID,
    TriggerTaxCategory, Amount) VALUES (900, 2, True, 1, 5, 103, 'Rent Payment', 0)
  INSERT INTO AutoEvent (IdAutoEvent, EventType, Enabled, EventAction, TriggerType, TriggerID,
    TriggerTaxCategory, Amount) VALUES (901, 2, True, 1, 5, 103, 'Rent Payment', 0)
  settle from credit <by itself>
when
  pay amount <received>
  today <day>
  <event>
then
  DateNextDue = <due before>
when
  return payment 1
then
  DateNextDue = <due>
  owed -> <owed>
  OptionBalance = <option>
  credit of rent -> 0.00
  SELECT Count(*) FROM Transactions WHERE IdLease = 101 AND Amount = 0
    AND Description NOT LIKE 'Returned *' -> 0
when
  pay rent
then
  DateNextDue = <due again>
  owed -> nothing is
  the books balance
each
  received | by itself | day | event | due before | due | due again | owed | option
  # All of it paid rents.
  2000 | yes | 02/03/2024 | the books balance | 03/01/2024 | 01/01/2024 | 03/01/2024 | rent 2000 | 0.00
  3000 | yes | 03/03/2024 | the books balance | 04/01/2024 | 01/01/2024 | 04/01/2024 | rent 3000 | 0.00
  3300 | yes | 03/03/2024 | the books balance | 04/01/2024 | 01/01/2024 | 04/01/2024 | rent 3000 | 0.00
  # It paid a part, and the rest is open, or paid by other money.
  1400 | yes | 02/03/2024 | the books balance | 02/01/2024 | 01/01/2024 | 03/01/2024 | rent 1600, other 400 | 0.00
  1400 | yes | 02/03/2024 | pay rent | 03/01/2024 | 02/01/2024 | 03/01/2024 | rent 1000, other 400 | 50.00
  # It made up what other money lacked.
  1400 | no | 02/03/2024 | pay rent | 03/01/2024 | 01/01/2024 | 03/01/2024 | rent 1400 | 0.00
  1400 | no | 02/03/2024 | pay amount 600 | 03/01/2024 | 01/01/2024 | 03/01/2024 | rent 1400 | 0.00
  # The next rent was paid by other money.
  2000 | yes | 03/03/2024 | pay rent | 04/01/2024 | 02/01/2024 | 04/01/2024 | rent 2000 | 50.00
  # It covered the rent, and the rest, if any, was paid out.
  2400 | no | 02/03/2024 | pay rent | 03/01/2024 | 01/01/2024 | 03/01/2024 | rent 2000, other 400 | 0.00
  2000 | no | 02/03/2024 | pay rent | 03/01/2024 | 01/01/2024 | 03/01/2024 | rent 2000 | 0.00
  # It wasn't spent, or was paid out.
  1400 | no | 01/09/2024 | the books balance | 02/01/2024 | 01/01/2024 | 02/01/2024 | rent 1000 | 0.00
  1400 | no | 01/09/2024 | pay rent | 02/01/2024 | 01/01/2024 | 02/01/2024 | rent 1000, other 400 | 0.00
# The same for a fee that credit has paid.
given
  it is 01/02/2024
  DateUpdated = 01/02/2024
  charge rent 1000 on 01/01/2024
  # Events that wait for the tenant's payments post rows in the midst of each.
  INSERT INTO AutoEvent (IdAutoEvent, EventType, Enabled, EventAction, TriggerType, TriggerID,
    TriggerTaxCategory, Amount) VALUES (900, 2, True, 1, 5, 103, 'Rent Payment', 0)
  INSERT INTO AutoEvent (IdAutoEvent, EventType, Enabled, EventAction, TriggerType, TriggerID,
    TriggerTaxCategory, Amount) VALUES (901, 2, True, 1, 5, 103, 'Rent Payment', 0)
  pay amount 1400
  today 01/09/2024
  charge fee 500 on 01/08/2024
  pay amount 100
when
  return payment 1
then
  DateNextDue = 01/01/2024
  owed -> rent 1000, other 400
when
  pay rent
then
  DateNextDue = 02/01/2024
  owed -> nothing is
  the books balance
# The return shows all of that before, and is refused if the credit was spent in another way since.
given
  it is 01/02/2024
  DateUpdated = 01/02/2024
  Option = True
  OptionCredit = 50
  charge rent 1000 on 01/01/2024
  # Events that wait for the tenant's payments post rows in the midst of each.
  INSERT INTO AutoEvent (IdAutoEvent, EventType, Enabled, EventAction, TriggerType, TriggerID,
    TriggerTaxCategory, Amount) VALUES (900, 2, True, 1, 5, 103, 'Rent Payment', 0)
  INSERT INTO AutoEvent (IdAutoEvent, EventType, Enabled, EventAction, TriggerType, TriggerID,
    TriggerTaxCategory, Amount) VALUES (901, 2, True, 1, 5, 103, 'Rent Payment', 0)
  pay amount 1400
  today 02/03/2024
  pay rent
then
  preview return of 1
    -> Transaction (1,400.00)
    -> Charge open again 1,000.00
    -> Split in two 1,000.00
    -> Part still paid 600.00
    -> Part open again 400.00
    -> Credit withdrawn (400.00)
    -> In the place of the charges 1,400.00
    -> Settled by the return (1,400.00)
    -> Payment in the ledger 1,400.00
    -> Option credit withdrawn (100.00)
    -> Next due date 0.00
    -> Payment marked 0.00
when
  open return stale of 1
  edit payment 2, only 2
  submit return stale -> refused: ...
  # A payment that was deleted still shows on the open screen.
  delete payment 1
  rows of stale -> 12
# Credit that was used for a fee and paid out for the rest is shown row by row.
given
  it is 01/02/2024
  DateUpdated = 01/02/2024
  Option = True
  OptionCredit = 50
  charge rent 1000 on 01/01/2024
  # Events that wait for the tenant's payments post rows in the midst of each.
  INSERT INTO AutoEvent (IdAutoEvent, EventType, Enabled, EventAction, TriggerType, TriggerID,
    TriggerTaxCategory, Amount) VALUES (900, 2, True, 1, 5, 103, 'Rent Payment', 0)
  INSERT INTO AutoEvent (IdAutoEvent, EventType, Enabled, EventAction, TriggerType, TriggerID,
    TriggerTaxCategory, Amount) VALUES (901, 2, True, 1, 5, 103, 'Rent Payment', 0)
  pay amount 1400
  charge fee 100 on 01/08/2024
  pay rent
then
  preview return of 1
    -> Transaction (1,400.00)
    -> Charge open again 1,000.00
    -> Charge open again 100.00
    -> Credit still used (300.00)
    -> Credit withdrawn (100.00)
    -> Credit spent, owed again 300.00
    -> In the place of the charges 1,400.00
    -> Settled by the return (1,400.00)
    -> Payment in the ledger 1,400.00
    -> Option credit withdrawn (50.00)
    -> Next due date 0.00
    -> Payment marked 0.00
# Credit that was paid ahead once more is owed beside the new credit.
given
  it is 01/02/2024
  DateUpdated = 01/02/2024
  Option = True
  OptionCredit = 50
  charge rent 1000 on 01/01/2024
  # Events that wait for the tenant's payments post rows in the midst of each.
  INSERT INTO AutoEvent (IdAutoEvent, EventType, Enabled, EventAction, TriggerType, TriggerID,
    TriggerTaxCategory, Amount) VALUES (900, 2, True, 1, 5, 103, 'Rent Payment', 0)
  INSERT INTO AutoEvent (IdAutoEvent, EventType, Enabled, EventAction, TriggerType, TriggerID,
    TriggerTaxCategory, Amount) VALUES (901, 2, True, 1, 5, 103, 'Rent Payment', 0)
  pay amount 1400
  charge fee 100 on 01/08/2024
  pay amount 500
  # The older of the two credits of the day is taken in too.
  edit payment 2, only 1 2 4
then
  SELECT Sum(Amount) FROM Transactions -> 1500
when
  return payment 1
then
  owed -> rent 1000, other 0
  DateNextDue = 01/01/2024
when
  pay rent
then
  DateNextDue = 02/01/2024
  owed -> nothing is
  the books balance
# A payment from credit that is left empty is marked until the return is deleted; of two returns on
# a day either may have left it.
given
  it is 01/02/2024
  DateUpdated = 01/02/2024
  Option = True
  OptionCredit = 50
  charge rent 1000 on 01/01/2024
  # Events that wait for the tenant's payments post rows in the midst of each.
  INSERT INTO AutoEvent (IdAutoEvent, EventType, Enabled, EventAction, TriggerType, TriggerID,
    TriggerTaxCategory, Amount) VALUES (900, 2, True, 1, 5, 103, 'Rent Payment', 0)
  INSERT INTO AutoEvent (IdAutoEvent, EventType, Enabled, EventAction, TriggerType, TriggerID,
    TriggerTaxCategory, Amount) VALUES (901, 2, True, 1, 5, 103, 'Rent Payment', 0)
  pay amount 2000
  today 02/03/2024
  pay rent
  charge fee 60 on 02/03/2024
  pay rent
  <other return>
when
  open return last of 1
  marks of last
    -> Payment from credit marked: Returned 02/03/2024: Rent Payment for O'Brien, 12 Elm Street A
  submit return last
then
  SELECT Description FROM Transactions WHERE IdLease = 101 AND Amount = 0
    -> Returned 02/03/2024: Rent Payment for O'Brien, 12 Elm Street A
when
  delete payment <reversal>
then
  SELECT Description FROM Transactions WHERE IdLease = 101 AND Amount = 0 -> <description>
each
  other return | reversal | description
  the books balance | 4 | Rent Payment for O'Brien, 12 Elm Street A
  return payment 3 | 5 | Returned 02/03/2024: Rent Payment for O'Brien, 12 Elm Street A
# A payment that earned no option credit takes none along that was entered by hand since.
given
  it is 01/02/2024
  DateUpdated = 01/02/2024
  Option = True
  OptionCredit = 0
  charge rent 1000 on 01/01/2024
  settle from credit yes
  pay amount 2000
when
  today 02/03/2024
  INSERT INTO RentLog (IdRentLog, IdLease, IdTransaction, Class, Flags, DatePosted, Category,
    Amount, Description) VALUES (99000, 101, 0, 4, 0, '02/03/2024', 'Option Credit', 5000, 'Paid')
  return payment 1
then
  owed -> rent 2000
  SELECT Sum(Amount) FROM RentLog WHERE Class = 4 -> 5000
