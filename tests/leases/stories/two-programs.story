# A charge is paid once, however many payments show it: a payment is refused if one of its charges
# was paid, changed or deleted since it was opened, or the lease deleted.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
  charge fee 40 on 01/09/2024
  open payment stale of rent
  open payment first of rent
when
  submit first
  submit stale
    -> refused: The charge "1000 on 01/01/2024" of 01/01/2024 was paid after this payment was
    opened. Nothing was posted.
then
  DateNextDue = 02/01/2024
when
  UPDATE RentLog SET IdTransaction = 0, Amount = 999 WHERE Flags = 1
  submit stale
    -> refused: The charge "1000 on 01/01/2024" of 01/01/2024 was changed after this payment was
    opened. Nothing was posted.
  DELETE * FROM RentLog WHERE Flags = 1
  submit stale
    -> refused: The charge "1000 on 01/01/2024" of 01/01/2024 was deleted after this payment was
    opened. Nothing was posted.
  DELETE * FROM Lease
  submit stale
    -> refused: The lease was deleted after this payment was opened. Nothing was posted.
# The same while the second payment is being written.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
when
  elsewhere pay rent
  pay rent
    -> refused: The charge "1000 on 01/01/2024" of 01/01/2024 was paid after this payment was
    opened. Nothing was posted.
# A charge that isn't ticked stays paid by the other program.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
  charge fee 40 on 01/09/2024
  open payment rent of rent, only 1
  open payment fee of rent, only 2
when
  submit fee
  submit rent
then
  owed -> nothing is
  SELECT Sum(Amount) FROM Transactions -> 1040
# An edit of a payment that was edited since is refused until the payment is read again.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
  pay rent
  charge fee 40 on 01/09/2024
  open payment mine of 1
when
  edit payment 1, only 1 2
  submit mine, described Mine
    -> refused: The payment was changed after it was opened. Nothing was posted.
  read again mine
  submit mine, described Mine
then
  SELECT Amount, Description FROM Transactions -> 1040|Mine
# The charges that the other edit reopened or settled are listed, but not as they are now.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
  pay rent
  charge fee 40 on 01/09/2024
when
  open payment stale of 1
  edit payment 1, only 1 2
  submit stale -> refused: The payment was changed after it was opened. Nothing was posted.
  open payment stale of 1
  edit payment 1, only 1
  submit stale -> refused: The payment was changed after it was opened. Nothing was posted.
# A payment of nothing gets one row from two edits.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
  pay rent, only none
  open payment first of 1, only 1
  open payment second of 1, only 1
when
  submit first
  submit second
then
  SELECT Count(*), Sum(Amount) FROM RentLog WHERE Flags = 2 -> 1|-1000
# A lease is charged once by two runs.
given
  DateNextDue = 03/01/2024
  DateUpdated = 02/15/2024
  it is 03/05/2024
when
  elsewhere run all leases
  run all leases -> nothing
then
  03/01/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 03/01/2024
# A lease that is opened while a run charges it is charged once.
given
  DateNextDue = 03/01/2024
  DateUpdated = 02/15/2024
when
  elsewhere today 03/05/2024
  today 03/05/2024
then
  03/01/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 03/01/2024
  RentStatus = Due
# Notice is given to the lease as it is now.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
when
  elsewhere UPDATE Lease SET Rent = 1100
  give notice
then
  Status = Notice
  Rent = 1,100.00
