# A lease that begins in the far future is only made ready: its walk starts a month before it.
given
  Status = Pending
  DateActive = 05/31/2024
  DateRenewed = 05/31/2024
  DateNextDue = 05/31/2024
  DateUpdated =
when
  today 01/10/2024
then
  nothing in the ledger
  Status = Pending
  DateUpdated = 04/30/2024
  RentStatus = OK
  unit = Hold
