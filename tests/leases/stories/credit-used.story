# A new charge is settled from credit only if the lease says so, and reprocessing, which posts what
# was posted before, settles nothing.
given
  it is 03/31/2024
  DateUpdated = 03/31/2024
  DateNextDue = 04/01/2024
  pay amount 1500
when
  today 04/01/2024
then
  DateNextDue = 04/01/2024
when
  settle from credit yes
  reprocess
then
  SELECT Count(*) FROM Transactions -> 1
when
  settle from credit no
  settle from credit yes
then
  SELECT Count(*) FROM LeaseCredit -> 1
# A discount is no credit of the tenant's.
given
  it is 03/31/2024
  DateUpdated = 03/31/2024
  DateNextDue = 04/02/2024
  settle from credit yes
  charge fee -30 on 03/01/2024
  UPDATE RentLog SET Category = 'Rent Discount'
when
  today 04/02/2024
then
  SELECT Count(*) FROM Transactions -> 0
# A payment triggers the events that wait for it; settling from its credit and its return do not,
# since no money comes in.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  INSERT INTO AutoEvent (IdAutoEvent, EventType, Enabled, EventAction, TriggerType, TriggerID,
    TriggerTaxCategory, DebitType, DebitId, CreditType, CreditId, Amount, TaxCategory, Description)
    VALUES (7, 2, True, 1, 1, 105, 'Rent Payment', 1, 105, 1, 106, 5, 'Management Fees', 'Fee')
  settle from credit yes
when
  pay amount 1500
then
  SELECT Count(*) FROM Transactions WHERE TaxCategory = 'Management Fees' -> 1
when
  DateNextDue = 03/06/2024
  today 03/06/2024
  open return first of 1
  submit return first
then
  SELECT Count(*) FROM Transactions WHERE TaxCategory = 'Management Fees' -> 1
  SELECT Count(*) FROM Transactions -> 4
