# A new lease takes its status from its dates and its accounts from the settings; unit and tenant
# follow.
given
  it is 03/05/2024
  UPDATE Configuration SET DefaultRentAccount = 105, DefaultDepositAccount = 106, Term = 12,
    TermType = 'Month(s)'
  read settings
when
  save new lease, DateActive = <active>
then
  SELECT Status, RentStatus, DateRenewed, DateCreated, RentAccount, DepositAccount FROM Lease
    WHERE IdLease = 900
    -> <status>|OK|<active>|03/05/2024|105|106
  unit = Leased
  tenant = Current
each
  active | status
  04/01/2024 | Pending
  03/05/2024 | Contracted
  02/01/2023 | Contracted
# A new lease is charged the deposits of its unit, of its building and of all, once.
given
  it is 03/05/2024
  INSERT INTO Deposit (IdDeposit, IdBuilding, IdUnit, IsGlobal, Description, Amount)
    VALUES (1, 0, 0, True, 'Global', 100)
  INSERT INTO Deposit (IdDeposit, IdBuilding, IdUnit, IsGlobal, Description, Amount)
    VALUES (2, 104, 0, False, 'Building', 20)
  INSERT INTO Deposit (IdDeposit, IdBuilding, IdUnit, IsGlobal, Description, Amount)
    VALUES (3, 0, 102, False, 'Unit', 3)
  INSERT INTO Deposit (IdDeposit, IdBuilding, IdUnit, IsGlobal, Description, Amount)
    VALUES (4, 0, 999, False, 'Other', 5000)
  INSERT INTO Deposit (IdDeposit, IdBuilding, IdUnit, IsGlobal, Description, Amount)
    VALUES (5, 0, 0, True, 'Free', 0)
when
  save new lease, DateActive = 03/05/2024
then
  03/05/2024 | 3.0 | 'Deposit' | 100.00 | Global
  03/05/2024 | 3.0 | 'Deposit' | 20.00 | Building
  03/05/2024 | 3.0 | 'Deposit' | 3.00 | Unit
  SELECT DepositDue FROM Lease WHERE IdLease = 900 -> 123
when
  save lease, IdLease = 900
# A stored lease leaves unit and tenant as they are unless its status changes.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  DateRenewed = 01/01/2024
when
  save lease
then
  unit = Hold
when
  save lease, TermType = WTW
then
  Status = WTW
  unit = Leased
# A new lease without a first day is refused.
given
  it is 03/05/2024
when
  save new lease, DateActive = -> refused: DateActive is empty
