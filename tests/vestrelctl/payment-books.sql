UPDATE Configuration SET NextId = 1000;
INSERT INTO Building (IdBuilding, Address) VALUES (104, '12 Elm Street');
INSERT INTO Unit (IdUnit, IdBuilding, Unit) VALUES (102, 104, 'A');
INSERT INTO Tenant (IdTenant, LastName, FirstName) VALUES (103, 'O''Brien', 'Ann');
INSERT INTO Account (IdAccount, ShowAs) VALUES (105, 'First Bank');
INSERT INTO Account (IdAccount, ShowAs) VALUES (106, 'Plumber');
INSERT INTO Account (IdAccount, ShowAs) VALUES (107, 'Second Bank');
INSERT INTO Lease (IdLease, IdTenant, IdUnit, Status, DateActive, DateRenewed, DateNextDue, DateUpdated, Term, TermType, ExpireOption, NoticeDays, Rent, RentAccount, DepositAccount, Discount, DiscountDays, OneTimeFee, OneTimeDays, DailyFee, DailyDays, EvictDays)
VALUES (101, 103, 102, 'Contracted', '01/01/2023', '01/01/2023', '01/01/2024', '12/31/2023', 12, 'Month(s)', 'MTM', 30, 1000, 105, 105, 0, 5, 25, 3, 0, 10, 60);
