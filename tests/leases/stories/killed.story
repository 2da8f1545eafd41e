# A process that is killed in the middle of a routine leaves the books as before it or as after it.
given
  Option = True
  OptionCredit = 25
  DailyFee = 3
  today 02/14/2024
when
  killed anywhere in <event>
each
  event
  today 04/02/2024
  give notice
  break lease
  reprocess
  save new lease
  split 1 into 400 and 600
  pay amount 300
# Rolling forward is whole or not at all.
given
  DateNextDue = 06/01/2024
  today 02/14/2024
when
  killed anywhere in roll forward
# A payment and the events that it triggers on either side are whole or not at all.
given
  today 02/14/2024
  INSERT INTO AutoEvent (IdAutoEvent, TriggerType, TriggerID, EventType, Enabled, Alert,
    TriggerTaxCategory, EventAction, DebitType, DebitId, CreditType, CreditId, Amount,
    TaxCategory, IEN, Description) VALUES (500, 5, 103, 2, True, True, 'Rent Payment', 1, 1, 105,
    1, 106, 80, 'Fees', 1, 'Fee')
  INSERT INTO AutoEvent (IdAutoEvent, TriggerType, TriggerID, EventType, Enabled, Alert,
    TriggerTaxCategory, EventAction, DebitType, DebitId, CreditType, CreditId, Amount,
    TaxCategory, IEN, Description) VALUES (501, 1, 105, 2, True, True, 'Rent Payment', 1, 1, 105,
    1, 106, 80, 'Fees', 1, 'Fee')
when
  killed anywhere in pay rent
then
  SELECT Count(*) FROM Transactions -> 3
# So are an edit of a payment, its return and its deletion.
given
  today 02/14/2024
  pay rent
when
  killed anywhere in <event>
each
  event
  edit payment 1, only 2, check 17
  return payment 1, fee 15
  delete payment 1, with its charges
