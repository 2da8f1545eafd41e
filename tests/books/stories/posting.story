# A posting writes every field, and is broadcast once when all of it is kept.
given
  told
when
  post payment
  told -> 10
then
  SELECT * FROM Transactions
    -> 1000|05/01/2024|5|1|30|60|Smith, John Q|River Bank|0|0|0|0|False|False|950|17|Rent Payment|0|0|0|May|False|30|10|20|40|0|0|0|0
# A posting triggers the enabled events of its debit party, then those of its credit party, whose
# category is its own. They are dated today, whatever the day of the transaction.
given
  event 101 for account 60, category Rent Payment
  event 102 for tenant 30, category Rent Payment
  event 103 for tenant 30, category RENT payment
  UPDATE AutoEvent SET TriggerTaxCategory = ' RENT payment ' WHERE IdAutoEvent = 103
  event 104 for account 60, category Rent
  event 105 for tenant 60, category Rent Payment
  event 106 for account 30, category Rent Payment
  event 107 for account 60, category
  event 108 for account 60, category Rent Payment
  UPDATE AutoEvent SET Enabled = False WHERE IdAutoEvent = 108
  event 109 every 1 days, last run
when
  post payment
then
  05/01/2024 | May | 950
  05/17/2024 | Event 102 | 25
  05/17/2024 | Event 103 | 25
  05/17/2024 | Event 101 | 25
  SELECT IdAutoEvent FROM AutoEvent WHERE LastRun = '05/17/2024'
    -> 101
    -> 102
    -> 103
# A transfer to itself triggers an event of that account for both sides.
given
  event 101 for account 60, category Rent Payment
when
  post payment, to itself, category rent payment
then
  05/01/2024 | May | 950
  05/17/2024 | Event 101 | 25
  05/17/2024 | Event 101 | 25
# A posting without a category triggers the events that wait for none.
given
  event 101 for account 60, category
  event 102 for account 60
  event 103 for account 60, category Rent Payment
when
  post payment, category
then
  05/01/2024 | May | 950
  05/17/2024 | Event 101 | 25
  05/17/2024 | Event 102 | 25
# What an event posts triggers no event, and a posting that skips them triggers none.
given
  event 101 for account 60, category Rent Payment
  event 102 for account 60, category Supplies
  event 103 for account 62, category Supplies
when
  post payment
then
  05/01/2024 | May | 950
  05/17/2024 | Event 101 | 25
when
  post payment, without events
then
  SELECT Count(*) FROM Transactions -> 3
# A posting moves the triggered events on, and leaves the scheduled ones.
given
  event 101 for account 60, category Rent Payment
  event 102 every 1 months, last run 05/01/2024
when
  post payment
then
  SELECT IdAutoEvent, LastRun FROM AutoEvent
    -> 101|05/17/2024
    -> 102|05/01/2024
# A posting is kept when an event fails, of which an alert tells; the other events run.
given
  event 101 for account 60, category Rent Payment
  event 102 for account 60, category Rent Payment
  CREATE TRIGGER full BEFORE UPDATE ON AutoEvent WHEN NEW.IdAutoEvent = 101
    BEGIN SELECT RAISE(ABORT, 'no room'); END
when
  post payment
then
  05/01/2024 | May | 950
  05/17/2024 | Event 102 | 25
  SELECT Left(Description, 27) FROM Alerts -> Auto Event Failed: Event 10
# A posting that fails is nothing at all, its number and its events included.
given
  event 101 for account 60, category Rent Payment
  CREATE TRIGGER full BEFORE INSERT ON Transactions WHEN NEW.CheckNum = '17'
    BEGIN SELECT RAISE(ABORT, 'no room'); END
when
  post payment -> refused: ...
then
  nothing in the ledger
  SELECT LastRun FROM AutoEvent -> null
  SELECT NextId FROM Configuration -> 1000
# A process that is killed in a posting leaves it and its events whole or not at all.
given
  event 101 for account 60, category Rent Payment
  event 102 for tenant 30, category Rent Payment
  UPDATE AutoEvent SET Alert = True
when
  killed anywhere in post payment
then
  SELECT Count(*) FROM Transactions -> 3
  SELECT Count(*) FROM Alerts -> 2
