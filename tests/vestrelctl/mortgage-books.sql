UPDATE Configuration SET NextId = 1000;
INSERT INTO Account (IdAccount, ShowAs) VALUES (105, 'First Bank');
INSERT INTO Account (IdAccount, ShowAs) VALUES (106, 'Lender');
INSERT INTO Mortgage (IdMortgage, IdMortgagee, IdLastPmt, Description, OrigPV, OrigPer, OrigRate, FirstDue, NextDue, DateUpdated, CurrentPeriod, CurrentPV, EscrowAmount, PPM, PPMTrigger)
VALUES (101, 106, 105, 'Elm', 12000, 12, 0.12, '01/31/2024', '01/31/2024', '12/31/2023', 1, 12000, 50, True, 0.01);
