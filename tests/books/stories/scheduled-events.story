# A scheduled event posts its transaction with every field, is named in the run, and starts no
# triggered event. A party's name is cut to what the column holds.
given
  event 7 every 1 months, last run 04/17/2024
  UPDATE AutoEvent SET IdLease = 40, IdTenant = 30, IdBuilding = 10, IdUnit = 20, IdMortgage = 50,
    IdWorkOrder = 9
  UPDATE Account SET ShowAs = 'The River Bank of the City of Salem' WHERE IdAccount = 60
  event 8 for account 60, category Supplies
  event 9 for account 62, category Supplies
when
  run events -> 19 7 Event 7: Supplies 05/17/2024 25
then
  SELECT DateEffective, DebitType, DebitId, DebitDesc, CreditType, CreditId, CreditDesc, Amount,
    TaxCategory, IEN, CheckNum, Description FROM Transactions
    -> 05/17/2024|1|60|The River Bank of the City of |1|62|Jo Owner|25|Supplies|1|AutoEvent|Event 7
  SELECT IdLease, IdTenant, IdBuilding, IdUnit, IdMortgage, IdWorkOrder, Class, Flags, Reconciled,
    IdLedger, IdMileage, DebitPrevBal, DebitNewBal, CreditPrevBal, CreditNewBal, DebitExported,
    CreditExported FROM Transactions
    -> 40|30|10|20|50|9|0|0|False|0|0|0|0|0|0|False|False
  LastRun = 05/17/2024
  SELECT Count(*) FROM Alerts -> 0
# A run catches up one interval at a time, each event on its own day, and posts nothing twice.
given
  event 7 every 1 months, last run 01/31/2024
  event 8 every 2 weeks, last run 04/15/2024
when
  run events
    -> 19 7 Event 7: Supplies 02/29/2024 25
    -> 19 8 Event 8: Supplies 04/29/2024 25
    -> 19 7 Event 7: Supplies 03/29/2024 25
    -> 19 8 Event 8: Supplies 05/13/2024 25
    -> 19 7 Event 7: Supplies 04/29/2024 25
  run events -> nothing
then
  02/29/2024 | Event 7 | 25
  04/29/2024 | Event 8 | 25
  03/29/2024 | Event 7 | 25
  05/13/2024 | Event 8 | 25
  04/29/2024 | Event 7 | 25
# An event that never ran runs today, or on its day of the month, and counts from then on.
given
  event 7 every 1 months, last run
  event 8 every 30 days
  event 9 on day 20
when
  run events
  it is 05/20/2024
  run events
  it is 06/20/2024
  run events
then
  05/17/2024 | Event 7 | 25
  05/17/2024 | Event 8 | 25
  05/20/2024 | Event 9 | 25
  06/17/2024 | Event 7 | 25
  06/16/2024 | Event 8 | 25
  06/20/2024 | Event 9 | 25
# An event of a day of the month loses no day when the program isn't started on it: the awaited day
# is stored, and open lists hear of it, once.
given
  event 7 on day 20
  event 8 on day 16, last run
  told
when
  run events -> nothing
  told -> 19
  run events -> nothing
  told -> nothing
  it is 07/01/2024
  run events
    -> 19 7 Event 7: Supplies 05/20/2024 25
    -> 19 8 Event 8: Supplies 06/16/2024 25
    -> 19 7 Event 7: Supplies 06/20/2024 25
# An event without a name is reported by its number.
given
  event 7 every 1 months, last run 04/17/2024
  Description = ' '
when
  run events -> 19 7 event 7: Supplies 05/17/2024 25
# An event posts a transaction, raises an alert, both or neither, on the day it was due, and moves on.
given
  event 7 every 1 weeks, last run 05/03/2024
  EventAction = <action>
  Alert = <alert>
when
  run events
then
  SELECT Count(*) FROM Transactions WHERE DateEffective = '05/10/2024' -> <rows>
  SELECT EntryDate, Description FROM Alerts WHERE EntryDate = '05/10/2024' -> <alerts>
  LastRun = 05/17/2024
each
  action | alert | rows | alerts
  0 | False | 0 | nothing
  1 | False | 1 | nothing
  0 | True | 0 | 05/10/2024|Auto Event Launched: Event 7 [05/10/2024]
  1 | True | 1 | 05/10/2024|Auto Event Launched: Event 7 [05/10/2024]
  2 | False | 0 | nothing
# An event runs only while it is enabled, and catches up when it is enabled again.
given
  event 7 every 1 months, last run 02/10/2024
  event 8 for account 60, category Supplies
when
  Enabled = False
  run events -> nothing
  Enabled = NULL
  run events -> nothing
  Enabled = True
  run events
then
  03/10/2024 | Event 7 | 25
  04/10/2024 | Event 7 | 25
  05/10/2024 | Event 7 | 25
# An event that can't run is named once and left as it was, and the others run.
given
  event 5 every 0 months, last run 01/01/2024
  event 6 every 1 months, last run
  UPDATE AutoEvent SET IntervalType = 9 WHERE IdAutoEvent = 6
  event 7 every 1 months, last run 02/30/2024
  event 8 every 1 months, last run 03/10/2024
when
  run events
    -> 19 8 Event 8: Supplies 04/10/2024 25
    -> 19 8 Event 8: Supplies 05/10/2024 25
    -> 19 5 Event 5: It never runs: its interval period is 0
    -> 19 6 Event 6: It never runs: there is no interval type 9
    -> 19 7 Event 7: Field LastRun: "02/30/2024" is not a valid date.
then
  LastRun = 02/30/2024
  SELECT LastRun FROM AutoEvent WHERE IdAutoEvent = 5 -> 01/01/2024
# A run of an event that fails midway is rolled back whole, and what it did before stays.
given
  event 7 every 1 months, last run 02/10/2024
  event 8 every 1 months, last run 03/10/2024
  CREATE TRIGGER full BEFORE UPDATE ON AutoEvent WHEN NEW.IdAutoEvent = 7 AND
    NEW.LastRun = '04/10/2024' BEGIN SELECT RAISE(ABORT, 'no room'); END
when
  run events
    -> 19 7 Event 7: Supplies 03/10/2024 25
    -> 19 8 Event 8: Supplies 04/10/2024 25
    -> 19 8 Event 8: Supplies 05/10/2024 25
    -> 19 7 Event 7: no room...
then
  03/10/2024 | Event 7 | 25
  04/10/2024 | Event 8 | 25
  05/10/2024 | Event 8 | 25
  LastRun = 03/10/2024
# An event of deleted parties posts without their names, and without an amount posts 0.00.
given
  event 7 every 1 months, last run 04/10/2024
  DebitId = 4711
  UPDATE AutoEvent SET CreditId = 0, CreditType = NULL, Amount = NULL
when
  run events -> 19 7 Event 7: Supplies 05/10/2024 0
then
  SELECT DebitType, DebitId, DebitDesc, CreditType, CreditId, CreditDesc, Amount FROM Transactions
    -> 1|4711||0|0||0
# Two events of one number move on together, and open lists hear of each pass when it is kept.
given
  event 7 every 1 months, last run 03/10/2024
  event 7 every 1 months, last run 03/10/2024
  told
when
  run events
then
  04/10/2024 | Event 7 | 25
  04/10/2024 | Event 7 | 25
  05/10/2024 | Event 7 | 25
  05/10/2024 | Event 7 | 25
  told -> 10 19 10 19
# An event is posted once by two programs.
given
  event 7 every 1 months, last run 02/10/2024
  event 8 every 30 days, last run
  UPDATE AutoEvent SET Alert = True
when
  elsewhere run events
  run events -> nothing
then
  03/10/2024 | Event 7 | 25
  05/17/2024 | Event 8 | 25
  04/10/2024 | Event 7 | 25
  05/10/2024 | Event 7 | 25
  SELECT Count(*) FROM Alerts -> 4
# An event runs as it is when it runs.
given
  event 7 every 1 months, last run 04/10/2024
when
  elsewhere UPDATE AutoEvent SET Enabled = False, Amount = 9
  run events -> nothing
  UPDATE AutoEvent SET Enabled = True
  elsewhere DELETE * FROM AutoEvent
  run event 7
then
  nothing in the ledger
# A process that is killed in a run leaves each pass of it whole or not at all.
given
  event 7 every 1 months, last run 04/17/2024
  event 8 every 1 weeks, last run 05/10/2024
  UPDATE AutoEvent SET Alert = True
when
  killed anywhere in run events
then
  SELECT Count(*) FROM Transactions -> 2
