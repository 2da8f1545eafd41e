# A new transaction of the editor triggers events; an edit triggers none.
given
  event 101 for account 60, category Rent Payment
when
  save payment
  edit payment 1000, amount -1, class 3, flags 4
then
  SELECT Count(*) FROM Transactions -> 2
  SELECT Amount, Class, Flags FROM Transactions WHERE IdTransaction = 1000 -> -1|3|4
# An edit keeps what the editor doesn't show.
given
  save payment
  UPDATE Transactions SET Reconciled = True, DebitExported = True, IdLedger = 3
when
  edit payment 1000
then
  SELECT Reconciled, DebitExported, CreditExported, IdLedger FROM Transactions -> True|True|False|3
# An edit writes only what was changed: nulls, a name of long ago, an unknown class stay.
given
  INSERT INTO Transactions (IdTransaction, DateEffective, DebitType, DebitId, DebitDesc, Amount,
    IdLease, IEN) VALUES (900, '5/1/2024', 5, 30, 'Old Name', 12, 40, 7)
when
  edit payment 900
then
  SELECT DateEffective, DebitDesc, CreditType, CheckNum, Amount, IdTenant, IdLease, IEN, Class,
    Flags FROM Transactions -> 5/1/2024|Old Name|null|null|12|0|40|7|null|null
when
  edit payment 900, amount 13, credit 61
then
  SELECT DateEffective, DebitDesc, CreditType, CheckNum, Amount, IdTenant, IdLease, IEN, Class,
    Flags FROM Transactions -> 5/1/2024|Old Name|null|null|13|0|40|7|null|null
  SELECT CreditId, CreditDesc FROM Transactions -> 61|null
# The lists of trips and events are refreshed when there is something new in them.
given
  event 101 for account 60, category Rent Payment
  told
when
  save payment, with a trip
  # The event posts a transaction.
  told -> 10 19 12
  edit payment 1000, with a trip
  told -> 12
  edit payment 1000
  told -> 12
  edit payment 1000
  told -> nothing
  post payment
  told -> 19 10
# A transaction that was deleted comes back under its number, and triggers nothing.
given
  event 101 for account 60, category Rent Payment
when
  edit payment 77
then
  SELECT IdTransaction, Description, DebitExported FROM Transactions -> 77|May|False
# A trip goes there and back from the vehicle's highest reading. Saved again it keeps its number;
# deleted, it is written again.
given
  INSERT INTO Users (IdUser, UserName) VALUES (5, 'Administrator')
  INSERT INTO Mileage (IdMileage, Vehicle, OEnd) VALUES (1, 'Van', 1200.5)
  INSERT INTO Mileage (IdMileage, Vehicle, OEnd) VALUES (2, 'Car', 9000)
when
  save payment, with a trip
then
  SELECT EntryDate, Vehicle, OBegin, OEnd, Mileage, Destination, Purpose, Meal, IdBuilding,
    IdWorkOrder, idUser, Selected FROM Mileage WHERE IdMileage = 1001
    -> 05/01/2024|Van|1200.5|1215.5|15|River Bank|Rent Payment|0|10|0|5|False
  SELECT IdMileage FROM Transactions -> 1001
when
  # The trip itself is the vehicle's latest.
  edit payment 1000, with a trip
then
  SELECT OBegin, OEnd FROM Mileage WHERE IdMileage = 1001 -> 1215.5|1230.5
when
  DELETE * FROM Mileage
  edit payment 1000, with a trip
then
  SELECT IdMileage, OBegin FROM Mileage -> 1001|0
# Without a building a trip has no miles; without a usual vehicle it has none.
given
  UPDATE Configuration SET DefaultCar = NULL
when
  save payment, with a trip, building 0
then
  SELECT EntryDate, Vehicle, OBegin, OEnd, Mileage, Destination, IdBuilding, idUser FROM Mileage
    -> 05/01/2024||0|0|0|River Bank|0|0
# Without its trip a transaction forgets it, whether the user deletes it or keeps it; the user is
# asked once.
given
  ask before deleting
  save payment, with a trip
when
  answer <answer>
  edit payment 1000
  edit payment 1000
then
  asked -> Delete selected Mileage entry?
  SELECT Count(*) FROM Mileage -> <trips>
  SELECT IdMileage FROM Transactions -> 0
each
  answer | trips
  yes | 0
  no | 1
# A user who isn't asked before deletions isn't asked about a trip.
given
  save payment, with a trip
when
  answer no
  edit payment 1000
then
  asked -> nothing
  SELECT Count(*) FROM Mileage -> 0
# A save that fails leaves transaction and trip as they were.
given
  save payment, with a trip
  CREATE TRIGGER full BEFORE UPDATE ON Transactions BEGIN SELECT RAISE(ABORT, 'no room'); END
when
  edit payment 1000, description June<trip> -> refused: ...
each
  trip
  , with a trip
  , description June
# Two programs edit fields of one transaction side by side, and make one trip.
given
  save payment
when
  elsewhere edit payment 1000, description June, amount 7, with a trip
  edit payment 1000, check 18, amount 8, with a trip
then
  SELECT Description, Amount, CheckNum FROM Transactions -> June|8|18
  SELECT Count(*) FROM Mileage -> 1
# A process that is killed in a save leaves transaction and trip whole or not at all.
given
  save payment
when
  killed anywhere in edit payment 1000, with a trip
  killed anywhere in edit payment 1000
then
  SELECT Count(*) FROM Mileage -> 0
