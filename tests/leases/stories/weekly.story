# Week to week: every seventh day, over the leap day and the month's end.
given
  TermType = WTW
  Status = WTW
  DateNextDue = 02/20/2024
  DateUpdated = 02/19/2024
  ExpireOption =
when
  today 03/05/2024
then
  02/20/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 02/20/2024
  02/27/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 02/27/2024
  03/05/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 03/05/2024
  Status = WTW
