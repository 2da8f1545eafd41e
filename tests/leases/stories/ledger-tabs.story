# Each tab of the ledger shows the rows of its class, open or settled, the latest first, and sums
# what is open from the oldest.
given
  it is 03/05/2024
  charge <class> 100 on 02/01/2024
  charge <class> -10 on 12/31/2023
  charge <class> 1 on 01/01/2024
  UPDATE RentLog SET IdTransaction = 7 WHERE Amount = 1
  charge <other> 50 on 01/01/2024
  INSERT INTO RentLog (IdRentLog, IdLease, IdTransaction, DatePosted, Class, Amount)
    VALUES (1, 999, 0, '01/01/2024', 1, 5000)
then
  tab <tab>
    -> 100 on 02/01/2024 = 90.00
    -> -10 on 12/31/2023 = (10.00)
  tab <tab> History -> 1 on 01/01/2024
each
  class | other | tab
  fee | deposit | Rent
  subsidy | fee | Subsidy
  deposit | subsidy | Deposit
# The option credits are all on one tab; the rows of a day come in the order they were written.
given
  charge option 4 on 01/01/2024
  UPDATE RentLog SET IdTransaction = 7
  charge option 400 on 02/01/2024
  charge rent 1 on 02/01/2024
  charge fee 2 on 02/01/2024
then
  tab Option Credits
    -> 400 on 02/01/2024
    -> 4 on 01/01/2024
  tab Rent
    -> 2 on 02/01/2024 = 3.00
    -> 1 on 02/01/2024 = 1.00
