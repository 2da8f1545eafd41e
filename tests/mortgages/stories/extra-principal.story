# Extra principal that is paid with a base payment lowers the loan from its period on.
given
  run to 02/20/2024
when
  pay all, extra 1000
then
  SELECT Amount FROM Transactions -> 2199.101
  SELECT Category, PayDown, Total, IdTransaction <> 0 FROM MortgageLog WHERE Period = 2
    ORDER BY IdMortgageLog
    -> Mortgage Payment|0|599.5505|True
    -> Extra Principal|1000|1000|True
  SELECT Total FROM MortgageLog WHERE Flags = 2 -> -2199.101
  SELECT Sum(Total) FROM MortgageLog -> 0
  SELECT CurrentPeriod, NextDue, Format(CurrentPV, '0.00'), Left(xPri, 11) FROM Mortgage
    -> 3|03/15/2024|98800.40|0,1000,0,0,
  charges of 1
    -> x Mortgage Payment 599.5505
    -> x Mortgage Payment 599.5505
    -> x Extra Principal 1000
    -> Mortgage Payment of 2199.101 from First Bank to Ann's Loans on 02/20/2024 for period 1
# Extra principal that was paid ahead, twice, isn't asked for again.
given
  xPri = 0,100
  xRate =
  run to 01/20/2024
  pay all
when
  pay all, extra 300
  pay all, extra 200
then
  SELECT CurrentPeriod, NextDue, Format(CurrentPV, '0.00'), Left(xPri, 11) FROM Mortgage
    -> 2|02/15/2024|99900.45|0,600,0,0,0
when
  run to 02/20/2024
then
  SELECT Category, PayDown, Total, IdTransaction <> 0 FROM MortgageLog WHERE Period = 2
    ORDER BY IdMortgageLog
    -> Extra Principal|300|300|True
    -> Extra Principal|200|200|True
    -> Mortgage Payment|100|699.5505|False
when
  pay all
then
  SELECT CurrentPeriod, NextDue, Format(CurrentPV, '0.00'), Left(xPri, 11) FROM Mortgage
    -> 3|03/15/2024|99200.40|0,600,0,0,0
# Extra principal comes on top of what is paid extra every month.
given
  xPriAll = 50
  run to 01/20/2024
when
  pay all, extra 1000
then
  SELECT CurrentPeriod, NextDue, Format(CurrentPV, '0.00'), Left(xPri, 11) FROM Mortgage
    -> 2|02/15/2024|98850.45|1050,0,0,0,
when
  pay all, extra 10
  run to 02/20/2024
  pay all
then
  SELECT Left(xPri, 8) FROM Mortgage -> 1050,60,
# Extra principal of all that is left ends the loan.
given
  run to 01/20/2024
when
  pay all, extra 99900.4495
then
  Status = Closed
  CurrentPV = 0
  NextDue =
# A payoff asks for what is left after the extra principal.
given
  run to 01/20/2024
  pay all
  pay all, extra 900
when
  post payoff -> Posted
then
  SELECT Principal + PayDown FROM MortgageLog WHERE IdTransaction = 0 -> 99000.4495
when
  pay all
then
  Status = Closed
  CurrentPV = 0
