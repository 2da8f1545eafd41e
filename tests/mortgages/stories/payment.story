# A payment offers the open charges of its mortgage, none of them selected, from the account that
# paid last to the lender.
given
  EscrowAmount = 250
  INSERT INTO MortgageLog (IdMortgageLog, IdMortgage, IdTransaction, Flags, DatePosted, Total)
    VALUES (500, 999, 0, 1, '01/15/2024', 5)
  run to 01/20/2024
then
  charges
    -> - Mortgage Payment 599.5505
    -> - Mortgage Escrow 250
    -> Mortgage Payment of 0 from First Bank to Ann's Loans on 01/20/2024 for period 1
# A payment writes its transaction with every field, its row in the log, and the mortgage's next
# period; the screens hear of all three.
given
  xPri = 100.5,0
  run to 02/20/2024
  told
when
  pay charges 1, check 77, from 203 Somebody
then
  told -> 10 23 3
  SELECT DateEffective, DebitType, DebitId, DebitDesc, CheckNum, CreditType, CreditId, CreditDesc,
    Amount, TaxCategory, IEN, Description, Flags, Class, Reconciled, IdMortgage, IdBuilding,
    IdTenant, DebitExported FROM Transactions
    -> 02/20/2024|1|203|Somebody|77|1|203|Ann's Loans|700.0505|Mortgage Payment|1|Mortgage Payment for Elm's loan|0|5|False|201|202|0|False
  SELECT Period, Category, Description, Principal, PayDown, Interest, Other, Total, Flags,
    DatePosted FROM MortgageLog WHERE Flags = 2
    -> 0|Mortgage Payment|Mortgage Payment|0|0|0|-700.0505|-700.0505|2|02/20/2024
  SELECT Period, IdTransaction FROM MortgageLog WHERE Flags = 1 ORDER BY Period
    -> 1|1002
    -> 2|0
  IdLastPmt = 203
  CurrentPeriod = 2
  NextDue = 02/15/2024
  PmtStatus = Late
# Extra principal entered by hand on one charge lowers the interest of the next, whose total stays.
given
  run to 02/20/2024
  UPDATE MortgageLog SET PayDown = 1000, Total = Total + 1000 WHERE Period = 1
when
  pay charges 1
then
  SELECT Principal, PayDown, Interest, Total FROM MortgageLog WHERE Flags = 1 ORDER BY Period
    -> 99.5505|1000|500|1599.5505
    -> 105.0483|0|494.5022|599.5505
  SELECT Format(CurrentPV, '0.000') FROM Mortgage -> 98900.449
# A stored payment shows the amount it paid; an edit takes more charges, or gives all of them back,
# and never moves the period again.
given
  EscrowAmount = 250
  run to 02/20/2024
  pay charges 1
then
  charges of 1
    -> x Mortgage Payment 599.5505
    -> - Mortgage Escrow 250
    -> - Mortgage Payment 599.5505
    -> - Mortgage Escrow 250
    -> Mortgage Payment of 599.5505 from First Bank to Ann's Loans on 02/20/2024 for period 1
when
  edit payment 1, only 1 2 3, described Both months
then
  SELECT IdTransaction, Amount, Description FROM Transactions -> 1004|1449.101|Both months
  SELECT Total, Category, Description FROM MortgageLog WHERE Flags = 2
    -> -1449.101|Mortgage Payment|Both months
  CurrentPeriod = 2
  NextDue = 02/15/2024
when
  edit payment 1, only none
then
  SELECT Count(*) FROM MortgageLog WHERE IdTransaction = 0 -> 4
  CurrentPeriod = 2
when
  edit payment 12345 -> refused: ...
# Twelve payments, now on the day and now before the next one falls due, leave twelve months charged.
when
  run to 01/15/2024
  pay all
  run to 02/24/2024
  pay all
  run to 04/02/2024
  pay all
  run to 04/15/2024
  pay all
  run to 05/24/2024
  pay all
  run to 07/03/2024
  pay all
  run to 07/15/2024
  pay all
  run to 08/24/2024
  pay all
  run to 10/03/2024
  pay all
  run to 10/15/2024
  pay all
  run to 11/24/2024
  pay all
  run to 01/02/2025
  pay all
then
  SELECT DatePosted, Category, Period, Format(Total, '0.00') FROM MortgageLog WHERE Flags = 1
    ORDER BY Period
    -> 01/15/2024|Mortgage Payment|1|599.55
    -> 02/15/2024|Mortgage Payment|2|599.55
    -> 03/15/2024|Mortgage Payment|3|599.55
    -> 04/15/2024|Mortgage Payment|4|599.55
    -> 05/15/2024|Mortgage Payment|5|599.55
    -> 06/15/2024|Mortgage Payment|6|599.55
    -> 07/15/2024|Mortgage Payment|7|599.55
    -> 08/15/2024|Mortgage Payment|8|599.55
    -> 09/15/2024|Mortgage Payment|9|599.55
    -> 10/15/2024|Mortgage Payment|10|599.55
    -> 11/15/2024|Mortgage Payment|11|599.55
    -> 12/15/2024|Mortgage Payment|12|599.55
  SELECT Count(*) FROM MortgageLog WHERE IdTransaction = 0 -> 0
  CurrentPeriod = 13
  NextDue = 01/15/2025
  RemainingT = 348
  Status = Current
  PmtStatus = OK
# A payment without a day, or with an extra principal that can't be, is refused.
given
  run to 01/20/2024
  CurrentPeriod = <period>
when
  pay charges none, <entry> -> refused: <message>
each
  period | entry | message
  1 | on no day | A payment date must be entered.
  1 | extra -1 | Extra principal cannot be negative.
  1 | extra 99901 | Extra principal cannot be more than what is then left of the loan, 99,900.45.
  361 | extra 1 | Nothing is owed on this mortgage: no extra principal can be paid.
# The payment of a deleted mortgage keeps its building when it is edited.
given
  run to 01/20/2024
  pay all
when
  DELETE * FROM Mortgage
  charges -> refused: ...
  edit payment 1, check 5
then
  SELECT IdBuilding, IdMortgage, CheckNum, Amount FROM Transactions -> 202|201|5|599.5505
# A payment keeps the balloon, and extra principal lowers its amount.
given
  BalloonMtg = True
  BalloonPer = 24
  run to 01/20/2024
when
  pay all
then
  SELECT BalloonMtg, BalloonPer, Format(BalloonPmt, '0.00'), CurrentPeriod FROM Mortgage
    -> True|24|97468.24|2
when
  run to 02/20/2024
  pay all, extra 1000
then
  SELECT Format(BalloonPmt, '0.00') FROM Mortgage -> 96352.26
# A process that is killed in a payment leaves it whole or not at all, with the mortgage's figures.
given
  EscrowAmount = 250
  run to 02/20/2024
when
  killed anywhere in pay all, extra 100
then
  CurrentPeriod = 3
  NextDue = 03/15/2024
