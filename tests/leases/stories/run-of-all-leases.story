# The run says what it posted and for whom.
given
  it is 02/10/2024
when
  run all leases
    -> 2 101 O'Brien, 12 Elm Street A: Rent 01/01/2024 1000
    -> 2 101 O'Brien, 12 Elm Street A: Rent 02/01/2024 1000
# A lease that can't be run is named and left as it was, and the others are run.
given
  it is 02/10/2024
  INSERT INTO Lease (IdLease, IdTenant, IdUnit, Status, DateActive, DateRenewed, DateNextDue,
    DateUpdated, Term, TermType, ExpireOption, Rent, DiscountDays, OneTimeDays, OneTimeFee,
    DailyDays, DailyFee) VALUES (201, 103, 102, 'Contracted', '01/01/2023', '01/01/2024',
    '01/01/2024', '12/31/2023', 12, 'Month(s)', 'MTM', 700, 5, 5, 10, 40, 0)
  <field> = <value>
when
  run all leases
    -> 2 201 O'Brien, 12 Elm Street A: Rent 01/01/2024 700
    -> 2 201 O'Brien, 12 Elm Street A: Late Fee 01/06/2024 10
    -> 2 201 O'Brien, 12 Elm Street A: Rent 02/01/2024 700
    -> 2 201 O'Brien, 12 Elm Street A: Late Fee 02/06/2024 10
    -> 2 101 O'Brien, 12 Elm Street A: <reason>
then
  SELECT Count(*) FROM RentLog WHERE IdLease = 101 -> 0
each
  field | value | reason
  DateNextDue | | DateNextDue is empty
  DateNextDue | NULL | DateNextDue is empty
  DateRenewed | 02/30/2024 | Field DateRenewed: "02/30/2024" is not a valid date.
  DateUpdated | yesterday | Field DateUpdated: "yesterday" is not a valid date.
  OneTimeFee | NULL | Field OneTimeFee: The value is empty.
  DailyDays | NULL | Field DailyDays: The value is empty.
  Rent | NULL | Field Rent: The value is empty.
# A fee that never falls due may be missing.
given
  DailyFee = NULL
  DailyDays = 90
  SubsAmt = NULL
  it is 02/10/2024
when
  run all leases
    -> 2 101 O'Brien, 12 Elm Street A: Rent 01/01/2024 1000
    -> 2 101 O'Brien, 12 Elm Street A: Rent 02/01/2024 1000
# The balances of a lease are sums of its ledger, and of what was refunded or charged of its deposit.
given
  INSERT INTO RentLog (IdLease, Class, Flags, Amount, IdTransaction) VALUES (101, 1, 1, 900, 0)
  INSERT INTO RentLog (IdLease, Class, Flags, Amount, IdTransaction) VALUES (101, 1, 0, -40, 0)
  INSERT INTO RentLog (IdLease, Class, Flags, Amount, IdTransaction) VALUES (101, 1, 1, 900, 7)
  INSERT INTO RentLog (IdLease, Class, Flags, Amount, IdTransaction) VALUES (101, 1, 2, -900, 7)
  INSERT INTO RentLog (IdLease, Class, Flags, Amount, IdTransaction) VALUES (101, 2, 0, 300, 0)
  INSERT INTO RentLog (IdLease, Class, Flags, Amount, IdTransaction) VALUES (101, 3, 0, 500, 0)
  INSERT INTO RentLog (IdLease, Class, Flags, Amount, IdTransaction) VALUES (101, 3, 0, 250, 8)
  INSERT INTO RentLog (IdLease, Class, Flags, Amount, IdTransaction) VALUES (101, 3, 2, -250, 8)
  INSERT INTO RentLog (IdLease, Class, Flags, Amount, IdTransaction) VALUES (101, 3, 3, 100, 9)
  INSERT INTO RentLog (IdLease, Class, Flags, Amount, IdTransaction) VALUES (101, 4, 0, 25, 7)
  INSERT INTO Transactions (IdLease, Class, Flags, Amount) VALUES (101, 3, 3, 100)
  INSERT INTO Transactions (IdLease, Class, Flags, Amount) VALUES (101, 3, 4, 200)
  INSERT INTO Transactions (IdLease, Class, Flags, Amount) VALUES (101, 3, 0, 999)
when
  store balances
then
  RentDue = 860.00
  SubsDue = 300.00
  OptionBalance = 25.00
  DepositTotal = 750.00
  DepositPaid = 250.00
  DepositDue = 500.00
  DepositRefunded = 100.00
  DepositCharged = 200.00
  DepositBalance = (50.00)
# Rent is late from 6 days on, a warning past 30 and an eviction past 60; a lease that is over, or
# without a due date, keeps its status.
given
  it is 02/10/2024
  RentStatus = before
  DateNextDue = <due>
  Status = <status>
when
  set rent status
then
  RentStatus = <late>
each
  due | status | late
  02/11/2024 | MTM | OK
  02/10/2024 | MTM | Due
  02/05/2024 | MTM | Due
  02/04/2024 | MTM | Late
  01/11/2024 | MTM | Late
  01/10/2024 | MTM | Warning
  12/11/2023 | Notice | Eviction
  12/11/2023 | Broken | n/a
  12/11/1903 | Expired | before
  | MTM | before
