# A command moves the status of the lease, and unit and tenant follow.
given
  it is 03/05/2024
  DateUpdated = 03/05/2024
  Status = <before>
  DateActive = <active>
  DateRenewed = <active>
when
  <command>
then
  Status = <status>
  DateVacating = <vacating>
  unit = <unit>
  tenant = <tenant>
each
  before | active | command | status | vacating | unit | tenant
  Contracted | 01/01/2024 | give notice, 30 | Notice | 04/04/2024 | Leased | Current
  MTM | 01/01/2024 | give notice, 0 | Notice | 03/05/2024 | Leased | Current
  Contracted | 01/01/2024 | break lease | Broken | 03/05/2024 | Avaliable | Archived
  Pending | 06/01/2024 | break lease | Broken | 03/05/2024 | Avaliable | Archived
  Notice | 01/01/2024 | cancel notice | Contracted | | Leased | Current
  Notice | 06/01/2024 | cancel notice | Pending | | Leased | Current
  Broken | 01/01/2024 | renew lease | Contracted | | Leased | Current
  Expired | 01/01/2020 | renew lease | MTM | | Leased | Current
