# A payment writes its transaction with every field, its row in the ledger, and the charges that it
# settles.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
  charge fee 40 on 01/09/2024
when
  pay rent, on 02/29/2024, check 1'7, as Partial Rent Payment
then
  SELECT IdTransaction, DateEffective, DebitType, DebitId, DebitDesc, CreditType, CreditId,
    CreditDesc, DebitPrevBal, DebitNewBal, CreditPrevBal, CreditNewBal, CheckNum, Amount,
    TaxCategory, Class, IEN, Description, Flags, Reconciled, CreditExported, DebitExported,
    IdTenant, IdBuilding, IdUnit, IdLease, IdMortgage, IdWorkOrder, IdLedger, IdMileage
    FROM Transactions
    -> 1002|02/29/2024|5|103|O'Brien, Ann|1|105|First Bank|0|0|0|0|1'7|1040|Partial Rent Payment|1|0|Rent Payment for O'Brien, 12 Elm Street A|0|False|False|False|103|104|102|101|0|0|0|0
  01/01/2024 | 1.1 | 'Rent' | 1,000.00 | 1000 on 01/01/2024 | paid
  01/09/2024 | 1.0 | 'Fee' | 40.00 | 40 on 01/09/2024 | paid
  02/29/2024 | 1.2 | 'Partial Rent Payment' | (1,040.00) | Partial Rent Payment | paid
# Each rent of a period that is paid moves the next due date by a period, and the screen says so
# before. A term of "Year(s)" moves it by a year, an unknown one by a month.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  TermType = <term>
  DateNextDue = <due>
  charge rent 1000 on 01/01/2024
  charge rent 1000 on 02/01/2024
  charge fee 5 on 02/09/2024
when
  outlook of rent, only <ticked> -> <outlook>
  pay rent, only <ticked>
then
  DateNextDue = <moved>
each
  term | due | ticked | moved | outlook
  Month(s) | 01/01/2024 | 1 2 3 | 03/01/2024 | 3 charges, next due date moves from 01/01/2024 to 03/01/2024
  Month(s) | 01/31/2024 | 1 2 | 03/29/2024 | 2 charges, next due date moves from 01/31/2024 to 03/29/2024
  MTM | 01/31/2023 | 2 | 02/28/2023 | 1 charge, next due date moves from 01/31/2023 to 02/28/2023
  WTW | 02/26/2024 | 1 | 03/04/2024 | 1 charge, next due date moves from 02/26/2024 to 03/04/2024
  Year(s) | 02/29/2024 | 1 3 | 02/28/2025 | 2 charges, next due date moves from 02/29/2024 to 02/28/2025
  Years(s) | 02/29/2024 | 1 3 | 03/29/2024 | 2 charges, next due date moves from 02/29/2024 to 03/29/2024
  Month(s) | 01/01/2024 | 3 | 01/01/2024 | 1 charge, next due date stays 01/01/2024
  Month(s) | 01/01/2024 | none | 01/01/2024 | Nothing is ticked: a payment of 0.00 will be posted
# A payment of nothing posts 0.00, and no row in the ledger.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
when
  pay rent, only none
then
  SELECT Amount FROM Transactions -> 0
  01/01/2024 | 1.1 | 'Rent' | 1,000.00 | 1000 on 01/01/2024
  RentDue = 1,000.00
# A credit lowers the total, and may turn it into a payment to the tenant.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
  charge fee -1200 on 01/01/2024
when
  pay rent
then
  01/01/2024 | 1.1 | 'Rent' | 1,000.00 | 1000 on 01/01/2024 | paid
  01/01/2024 | 1.0 | 'Fee' | (1,200.00) | -1200 on 01/01/2024 | paid
  03/05/2024 | 1.2 | 'Rent Payment' | 200.00 | Rent Payment | paid
# Each rent that is paid earns the option credit once.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  Option = True
  OptionCredit = 50.5
  charge rent 1000 on 01/01/2024
  charge rent 1000 on 02/01/2024
  charge fee 5 on 02/09/2024
when
  outlook of rent
    -> 3 charges, next due date moves from 01/01/2024 to 03/01/2024, option credit 101.00
  pay rent
then
  SELECT DatePosted, Category, Amount FROM RentLog WHERE Class = 4
    -> 03/05/2024|Option Credit|50.5
    -> 03/05/2024|Option Credit|50.5
  OptionBalance = 101.00
# A subsidy comes from its payor and counts as income; a deposit comes from the tenant and doesn't.
# Neither moves the due date. The account that got a payment of rent or subsidy is proposed again.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge <class> 300 on 01/01/2024
  charges of <class>
    -> x 300 on 01/01/2024
    -> 300.00 from <payer> to <account>
when
  pay <class>, to 106
then
  DateNextDue = 01/01/2024
  SELECT IEN, TaxCategory FROM Transactions -> <posted>
  RentAccount = <next account>
each
  class | payer | account | posted | next account
  subsidy | Housing Aid | First Bank | 0|Rent Subsidy Payment | 106
  deposit | O'Brien, Ann | First Bank | 2|Deposit Payment | 105
# A subsidy whose payor isn't named comes from the tenant.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  SubsidyType = <type>
  SubsidyId = <id>
  charge subsidy 300 on 01/01/2024
when
  pay subsidy
then
  SELECT DebitType, DebitId FROM Transactions -> <payer>
each
  type | id | payer
  1 | 106 | 1|106
  5 | 103 | 5|103
  NULL | 106 | 5|103
  1 | NULL | 5|103
  0 | 0 | 5|103
  1 | 0 | 1|0
# A payer who was only typed is a name without a record, and a description loses its outer spaces.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
when
  pay rent, from Ann's uncle, described For January
then
  SELECT DebitDesc, DebitId, DebitType, IdTenant, Description FROM Transactions
    -> Ann's uncle|0|5|0|For January
# A payment that none of the accounts receives says so before.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
then
  outlook of rent, to 105
    -> 1 charge, next due date moves from 01/01/2024 to 02/01/2024
  outlook of rent, to nobody
    -> 1 charge, next due date moves from 01/01/2024 to 02/01/2024. No account is chosen to receive it
  outlook of rent, to Cash box
    -> 1 charge, next due date moves from 01/01/2024 to 02/01/2024. "Cash box" receives it, which is not one of your accounts
# The screens hear of a payment when all of it is kept.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1000 on 01/01/2024
  told
when
  pay rent
then
  told -> 2 10 2 30
# The run of the lease can be left to the caller.
given
  it is 03/05/2024
  charge rent 1000 on 01/01/2024
when
  pay rent, without a run
then
  DateUpdated = 12/31/2023
  DateNextDue = 02/01/2024
# Charges are offered by day, and those of a day in the order they came; another class is not.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge fee 5 on 02/09/2024
  charge fee 7 on 12/31/2023
  charge fee 6 on 12/31/2023
  charge deposit 9 on 01/01/2024
then
  charges of rent
    -> x 7 on 12/31/2023
    -> x 6 on 12/31/2023
    -> x 5 on 02/09/2024
    -> 18.00 from O'Brien, Ann to First Bank
# A payment whose sum is more than money can hold is refused.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  charge rent 1 on 01/01/2024
  UPDATE RentLog SET Amount = 922337203685477.5807
  charge rent 1 on 01/02/2024
when
  pay rent -> refused: ...
