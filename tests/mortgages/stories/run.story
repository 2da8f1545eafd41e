# The calendar charges each payment on its day, once: 100,000.00 at 6 percent over 360 months is
# 599.5505 a month. Without days of grace it is late from the day after; a second run of a day finds
# nothing left.
given
  <field>
when
  run to <today>
  run to <today>
then
  01/15/2024 | Mortgage Payment | 1 | 599.5505 | 1
  PmtStatus = <status>
  Status = Current
  DateUpdated = <today>
  NextDue = 01/15/2024
each
  field | today | status
  LateFee = 0 | 01/15/2024 | OK
  LateFee = 0 | 01/16/2024 | Late
  GracePeriod = 10 | 01/25/2024 | Due
  LateFee = 35 | 01/20/2024 | Late
  DateUpdated = NULL | 01/15/2024 | OK
# A negative grace is none, and brings no fee.
given
  LateFee = 35
  GracePeriod = -5
when
  run to 01/16/2024
then
  01/15/2024 | Mortgage Payment | 1 | 599.5505 | 1
  PmtStatus = Late
# Nothing is charged before the first due day, though the balance isn't known.
given
  CurrentPV = <balance>
when
  run to <today>
then
  nothing in the ledger
  Status = Current
  PmtStatus = OK
  DateUpdated = <today>
  NextDue = 01/15/2024
each
  balance | today
  100000 | 01/14/2024
  NULL | 01/10/2024
# A program that was closed for three months charges each month on its own day.
when
  run to 04/14/2024
then
  01/15/2024 | Mortgage Payment | 1 | 599.5505 | 1
  02/15/2024 | Mortgage Payment | 2 | 599.5505 | 1
  03/15/2024 | Mortgage Payment | 3 | 599.5505 | 1
  Status = Current
  PmtStatus = Late
  DateUpdated = 04/14/2024
  NextDue = 01/15/2024
# Escrow and insurance fall due with the payment, the late fee after the grace.
given
  EscrowAmount = 250
  PMI = 40.5
  LateFee = 35
  GracePeriod = 10
when
  run to 02/25/2024
  run to 02/25/2024
then
  01/15/2024 | Mortgage Payment | 1 | 599.5505 | 1
  01/15/2024 | Mortgage Escrow | 1 | 250 | 8
  01/15/2024 | PMI Payment | 1 | 40.5 | 5
  01/25/2024 | Late Payment | 1 | 35 | 7
  02/15/2024 | Mortgage Payment | 2 | 599.5505 | 1
  02/15/2024 | Mortgage Escrow | 2 | 250 | 8
  02/15/2024 | PMI Payment | 2 | 40.5 | 5
  02/25/2024 | Late Payment | 2 | 35 | 7
  PmtStatus = Late
# A loan that begins far ahead is only made ready: its walk starts a month before.
given
  DateUpdated =
  FirstDue = 06/15/2024
  NextDue = 06/15/2024
when
  run to 01/15/2024
then
  nothing in the ledger
  PmtStatus = OK
  DateUpdated = 05/15/2024
# A loan that is paid off is closed and charges nothing.
given
  CurrentPV = 0
  xPri = 1000000
  CurrentPeriod = 2
  NextDue =
when
  run to 03/20/2024
then
  nothing in the ledger
  Status = Closed
  PmtStatus = n/a
  DateUpdated = 03/20/2024
# Without a next due date a loan is charged on the calendar's own day, and its status stays.
given
  NextDue = NULL
when
  run to 01/30/2024
then
  01/28/2024 | Mortgage Payment | 1 | 599.5505 | 1
  Status = Current
  PmtStatus = null
  NextDue = null
# Charges end with the last period.
given
  OrigPer = 2
when
  run to 06/01/2024
then
  01/15/2024 | Mortgage Payment | 1 | 50375.3117 | 1
  02/15/2024 | Mortgage Payment | 2 | 50375.3117 | 1
  PmtStatus = Late
# Charges go on past a balloon.
given
  BalloonMtg = True
  BalloonPer = 1
when
  run to 02/20/2024
then
  01/15/2024 | Mortgage Payment | 1 | 599.5505 | 1
  02/15/2024 | Mortgage Payment | 2 | 599.5505 | 1
# Due on a day that February lacks: the day stays clamped from there.
given
  FirstDue = 01/31/2024
  NextDue = 01/31/2024
when
  run to 03/31/2024
then
  01/31/2024 | Mortgage Payment | 1 | 599.5505 | 1
  02/29/2024 | Mortgage Payment | 2 | 599.5505 | 1
  03/29/2024 | Mortgage Payment | 3 | 599.5505 | 1
  PmtStatus = Late
# The schedule splits each payment into principal, extra principal and interest.
given
  xPri = 0,120.25,0
when
  run to 02/15/2024
then
  SELECT Principal, PayDown, Interest, Other, Total, Description, IdTransaction FROM MortgageLog
    ORDER BY IdMortgageLog
    -> 99.5505|0|500|0|599.5505|Mortgage P & I Payment Due|0
    -> 100.0483|120.25|499.5022|0|719.8005|Mortgage P & I Payment Due|0
# Rolling forward charges the next payment once, however often; reprocessing posts again what was
# posted.
given
  run to 01/05/2024
when
  roll forward
then
  DateUpdated = 01/15/2024
when
  roll forward
  run to 01/15/2024
then
  01/15/2024 | Mortgage Payment | 1 | 599.5505 | 1
when
  reprocess
then
  01/15/2024 | Mortgage Payment | 1 | 599.5505 | 1
  01/15/2024 | Mortgage Payment | 1 | 599.5505 | 1
# A mortgage that can't be calculated is named and left as it was, and the others are run.
given
  INSERT INTO Mortgage (IdMortgage, FirstDue, NextDue, DateUpdated, OrigPV, OrigPer, OrigRate)
    VALUES (300, 'soon', '01/15/2024', '12/31/2023', 1000, 12, 0.05)
  it is 01/15/2024
when
  run all mortgages
    -> 3 201 Elm's loan: Mortgage Payment 01/15/2024 599.5505
    -> 3 300 mortgage 300: ...
then
  SELECT DateUpdated, Status FROM Mortgage WHERE IdMortgage = 300 -> 12/31/2023|null
