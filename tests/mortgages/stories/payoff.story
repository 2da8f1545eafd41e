# A payoff replaces all open charges by one; paid, it closes the mortgage, and nothing more is
# charged. The fourth decimal rounds up and down; early, interest only, without interest, in the
# last period, and past the 360th.
given
  OrigRate = <rate>
  OrigPer = <periods>
  IntOnly = <interest only>
  CurrentPeriod = <period>
  it is <today>
  DateUpdated = <today>
  refresh
  INSERT INTO MortgageLog (IdMortgageLog, IdMortgage, IdTransaction, Flags, DatePosted, Total)
    VALUES (500, 201, 0, 0, '01/15/2024', 5)
when
  post payoff -> Posted
then
  SELECT Category, Flags, Period, Total - Principal - PayDown - Interest FROM MortgageLog
    -> Mortgage Payoff|1|<period>|0
when
  pay all
  run to <later>
then
  Status = Closed
  PmtStatus = n/a
  CurrentPV = 0
  NextDue =
  SELECT Count(*) FROM MortgageLog -> 2
each
  rate | periods | interest only | period | today | later
  0.06 | 360 | False | 1 | 01/10/2024 | 01/10/2026
  0.0625 | 360 | False | 14 | 02/10/2025 | 02/10/2027
  0.07125 | 180 | False | 77 | 05/10/2030 | 05/10/2032
  0.05 | 360 | True | 5 | 05/10/2024 | 05/10/2026
  0.0433 | 360 | False | 360 | 12/10/2053 | 12/10/2055
  0 | 120 | False | 50 | 02/10/2028 | 02/10/2030
  0.05 | 480 | False | 401 | 05/10/2057 | 05/10/2059
# A mortgage without lists of rates and extra principal closes too.
given
  xPri =
  xRate =
  CurrentPPmt = 99.55
when
  post payoff -> Posted
  pay all
then
  Status = Closed
  CurrentPV = 0
# Without a known balance there is nothing to post, and nothing is removed.
given
  run to 01/20/2024
  CurrentPV = NULL
when
  post payoff -> NotFound
then
  01/15/2024 | Mortgage Payment | 1 | 599.5505 | 1
