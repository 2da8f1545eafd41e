# Reprocessing posts everything again from a month before the due date, duplicates included.
given
when
  today 01/15/2024
  reprocess
then
  01/01/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 01/01/2024
  01/01/2024 | 1.1 | 'Rent' | 1,000.00 | Rent due 01/01/2024
  RentDue = 2,000.00
