# An amount settles the oldest charges first and splits the one that it covers in part. The due date
# moves when a period's rent is paid, or the part of it that the landlord takes for the whole.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  Option = True
  OptionCredit = 12.5
  charge rent 1000 on 01/01/2024
  charge fee 40 on 01/09/2024
  charge rent 1000 on 02/01/2024
when
  pay amount <amount>
then
  DateNextDue = <due>
  paid -> <paid>
  the books balance
each
  amount | due | paid
  400 | 01/01/2024 | Rent 400 +; Rent Deferred 600 -
  400, the part counts as paid | 02/01/2024 | Rent 400 +; Rent Deferred 600 -
  1000 | 02/01/2024 | Rent 1000 +
  1020, the part counts as paid | 02/01/2024 | Rent 1000 +; Fee 20 +; Fee Deferred 20 -
  1540 | 02/01/2024 | Rent 1000 +; Fee 40 +; Rent 500 +; Rent Deferred 500 -
  2500 | 03/01/2024 | Rent 1000 +; Fee 40 +; Rent 1000 +; Overpayment 460 +; Credit -460 -
  100, first 2 | 01/01/2024 | Rent 60 +; Rent Deferred 940 -; Fee 40 +
# Nothing, less than nothing and a part of a cent are no amounts: nothing is shown, and nothing is
# written.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
when
  preview amount <amount> -> nothing
  pay amount <amount>
    -> refused: <message>
each
  amount | message
  0 | The amount received must be more than zero.
  -1 | The amount received must be more than zero.
  -1000 | The amount received must be more than zero.
  333.333 | The amount received must be in whole cents.
# A payment by amount says before how much it settles, in the order of the user.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
  charge fee 40 on 01/09/2024
then
  outlook of amount 100, first 2
    -> 1 charge paid and one in part, next due date stays 01/01/2024
# What was paid ahead lowers the balance, and a later payment takes it in as any charge.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
when
  pay amount 300
then
  credit of rent -> 300.00
  RentDue = (300.00)
when
  charge rent 1000 on 04/01/2024
  pay rent
then
  owed -> nothing is
  SELECT Sum(Amount) FROM Transactions -> 1000
  the books balance
# What is over of a deposit or a subsidy stays in its own class, and the due date never moves.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge <class> 800 on 01/01/2024
when
  pay amount 500, of <class>
then
  paid -> Fee 500 +; Fee Deferred 300 -
when
  pay amount 450, of <class>
then
  credit of <class> -> 150.00
  DateNextDue = 01/01/2024
  DepositDue = <deposit due>
  DepositBalance = <deposit>
  SubsDue = <subsidy due>
  the books balance
each
  class | deposit due | deposit | subsidy due
  deposit | (150.00) | 950.00 | 0.00
  subsidy | 0.00 | 0.00 | (150.00)
# A payment by amount is refused as a whole if a charge that it was planned on has changed.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
  charge rent 1000 on 02/01/2024
  open payment stale of rent, amount 1500
when
  <change> WHERE DatePosted = '01/01/2024'
  submit stale
    -> refused: The charge "1000 on 01/01/2024" of 01/01/2024 was <what> after this payment was
    opened. Nothing was posted.
each
  change | what
  UPDATE RentLog SET Amount = 999 | changed
  UPDATE RentLog SET IdTransaction = 7 | paid
  DELETE * FROM RentLog | deleted
# The same amount from two screens: the second finds its charge split.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
  open payment first of rent, amount 400
  open payment second of rent, amount 400
when
  submit first
  submit second
    -> refused: ...
then
  SELECT Sum(Amount) FROM Transactions -> 400
# An edit keeps the amount until its charges change; without what was paid ahead the payment is
# smaller, and the two rows cancel each other.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
  pay amount 1200
when
  edit payment 1, check 17
then
  SELECT Amount, CheckNum FROM Transactions -> 1200|17
  the books balance
when
  open payment stored of 1, amount 1000
  submit stored -> refused: A payment that was posted is corrected by its charges.
  edit payment 1, only 1
then
  SELECT Amount FROM Transactions -> 1000
  RentDue = 0.00
  the books balance
