# The one-time fee falls on the fifth day late, the daily fee from the ninth. A program
# that starts every day reckons the one-time fee from the oldest unpaid due date alone.
given
  OneTimeFee = 50
  DailyFee = 10
  DailyDays = 8
  EvictDays = 12
  NoticeDays = 9
when
  daily 01/11/2024
then
  01/01/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 01/01/2024
  01/06/2024 | 1.0 | 'Late Fee' | 50.00 | Late Fee
  01/10/2024 | 1.0 | 'Late Fee' | 10.00 | Late Fee
  01/11/2024 | 1.0 | 'Late Fee' | 10.00 | Late Fee
  RentStatus = Warning
  RentDue = 1,070.00
