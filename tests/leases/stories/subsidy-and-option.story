# A subsidy is charged beside the rent and paid by its payor; each rent paid earns option credit.
given
  Rent = 600
  Subs = True
  SubsAmt = 400.50
  Option = True
  OptionCredit = 25
when
  today 02/02/2024
  pay subsidy
  pay rent
then
  01/01/2024 | 1.1 | 'Rent' | 600.00 | Rent due 01/01/2024 | paid
  01/01/2024 | 2.0 | 'Rent Subsidy ' | 400.50 | Subsidy due 01/01/2024 | paid
  02/01/2024 | 1.1 | 'Rent' | 600.00 | Rent due 02/01/2024 | paid
  02/01/2024 | 2.0 | 'Rent Subsidy ' | 400.50 | Subsidy due 02/01/2024 | paid
  02/02/2024 | 2.2 | 'Rent Subsidy Payment' | (801.00) | Rent Subsidy Payment | paid
  02/02/2024 | 1.2 | 'Rent Payment' | (1,200.00) | Rent Payment | paid
  02/02/2024 | 4.0 | 'Option Credit' | 25.00 | Option Credit
  02/02/2024 | 4.0 | 'Option Credit' | 25.00 | Option Credit
  RentDue = 0.00
  SubsDue = 0.00
  OptionBalance = 50.00
  DateNextDue = 03/01/2024
  RentStatus = OK
