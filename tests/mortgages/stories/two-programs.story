# A charge is paid once by two programs.
given
  EscrowAmount = 250
  run to 02/20/2024
when
  elsewhere pay all
  pay all -> refused: ...
then
  SELECT Count(*), Sum(Amount) FROM Transactions -> 1|1699.101
  CurrentPeriod = 3
  NextDue = 03/15/2024
# A payment is refused if a charge of it was changed or deleted in the meantime, or the mortgage.
given
  EscrowAmount = 250
  run to 02/20/2024
when
  elsewhere <change>
  pay all -> refused: <message>
then
  SELECT * FROM Transactions -> nothing
each
  change | message
  UPDATE MortgageLog SET Other = 300, Total = 300 WHERE Flags = 8 | The charge "Mortgage Escrow Payment" of 01/15/2024 has been changed. Nothing was paid.
  DELETE * FROM MortgageLog WHERE Flags = 8 | The charge "Mortgage Escrow Payment" of 01/15/2024 has been deleted. Nothing was paid.
  DELETE * FROM MortgageLog | The charge "Mortgage P & I Payment Due" of 01/15/2024 has been deleted. Nothing was paid.
  DELETE * FROM Mortgage | The mortgage has been deleted. Nothing was paid.
# What isn't selected stays paid by the other program.
given
  EscrowAmount = 250
  run to 02/20/2024
when
  elsewhere pay charges 1
  pay charges 2
then
  SELECT Period, Flags, IdTransaction <> 0 FROM MortgageLog WHERE Flags <> 2
    ORDER BY IdMortgageLog
    -> 1|1|True
    -> 1|8|True
    -> 2|1|False
    -> 2|8|False
  CurrentPeriod = 2
# An edit of a payment that was edited in the meantime is refused.
given
  EscrowAmount = 250
  run to 02/20/2024
  pay charges 1
  open payment stale of 1
when
  elsewhere edit payment 1, only 1 4
  submit stale -> refused: This payment has been changed. Nothing was saved.
  open payment both of 1
  elsewhere edit payment 1, only 1
  submit both
    -> refused: The charge "Mortgage Escrow Payment" of 02/15/2024 has been changed. Nothing was paid.
# A payment whose row was lost gets one row from two edits, whether they read it before or after.
given
  EscrowAmount = 250
  run to 02/20/2024
  pay all
  DELETE * FROM MortgageLog WHERE Flags = 2
  open payment mine of 1
when
  elsewhere edit payment 1
  submit mine
then
  SELECT Count(*), Sum(Total) FROM MortgageLog WHERE Flags = 2 -> 1|-1699.101
when
  open payment mine of 1
  DELETE * FROM MortgageLog WHERE Flags = 2
  edit payment 1
  submit mine
then
  SELECT Count(*), Sum(Total) FROM MortgageLog WHERE Flags = 2 -> 1|-1699.101
when
  DELETE * FROM MortgageLog WHERE Flags = 2
  read again mine
  submit mine
then
  SELECT Count(*), Sum(Total) FROM MortgageLog WHERE Flags = 2 -> 1|-1699.101
# A payment that was deleted in the meantime isn't brought back.
given
  run to 02/20/2024
  pay all
  open payment stored of 1
when
  elsewhere DELETE * FROM Transactions
  submit stored -> refused: ...
# A day is charged once by two programs.
given
  EscrowAmount = 250
  run to 02/20/2024
  it is 03/20/2024
when
  elsewhere <run>
  <run>
then
  SELECT Count(*), Max(Period) FROM MortgageLog -> 6|3
each
  run
  catch up
  run to 03/20/2024
# A roll forward is charged once by two programs.
given
  run to 01/05/2024
when
  elsewhere roll forward
  roll forward
then
  01/15/2024 | Mortgage Payment | 1 | 599.5505 | 1
