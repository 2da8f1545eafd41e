# A split proposes the charge and its deferred twin.
given
  charge rent 1000 on 02/01/2024
then
  split 1
    -> 1000 on 02/01/2024
    -> 02/01/2024 Rent Deferred 1000 on 02/01/2024
# The parts take the place of the charge; a part of nothing is left out. One of them stays the
# period's rent.
given
  charge <charge> 1000 on 02/01/2024
when
  split 1 into <parts> -> <answer>
then
  SELECT Flags, Amount FROM RentLog WHERE Amount = <first> -> <first row>
  SELECT Flags, Amount FROM RentLog WHERE Amount <> <first> -> <second row>
  RentDue = 1,000.00
each
  charge | parts | answer | first | first row | second row
  rent | 400 and 600 | 2 rows, missing 0.00 | 400 | 1|400 | 0|600
  rent | 400 and 600, the second stays rent | 2 rows, missing 0.00 | 400 | 0|400 | 1|600
  fee | 0.01 and 999.99 | 2 rows, missing 0.00 | 0.01 | 0|0.01 | 0|999.99
  rent | 1000 and 0 | 1 rows, missing 0.00 | 1000 | 1|1000 | nothing
  rent | 0 and 1000 | loses the rent, 1 rows, missing 0.00 | 1000 | 0|1000 | nothing
  fee | 1200 and -200 | 2 rows, missing 0.00 | 1200 | 0|1200 | 0|-200
# Parts that don't add up are accepted: the user saw the difference.
given
  charge fee 1000 on 02/01/2024
when
  split 1 into 100 and 150 -> 2 rows, missing 750.00
then
  02/01/2024 | 1.0 | 'Fee' | 100.00 | 1000 on 02/01/2024
  02/01/2024 | 1.0 | 'Fee' | 150.00 | Deferred 1000 on 02/01/2024
  RentDue = 250.00
# The parts of a settled charge are settled.
given
  charge fee 1000 on 02/01/2024
  UPDATE RentLog SET IdTransaction = 7
when
  split 1 into 400 and 600
then
  02/01/2024 | 1.0 | 'Fee' | 400.00 | 1000 on 02/01/2024 | paid
  02/01/2024 | 1.0 | 'Fee' | 600.00 | Deferred 1000 on 02/01/2024 | paid
# A charge that was paid, changed or deleted in the meantime isn't split.
given
  charge rent 1000 on 02/01/2024
when
  elsewhere <change>
  split 1 into 400 and 600
    -> refused: The charge was changed or removed since it was read, so it can't be split.
each
  change
  UPDATE RentLog SET IdTransaction = 7
  UPDATE RentLog SET Amount = 5
  DELETE * FROM RentLog
