# Puts the shipped report files beside the programs, from where the first start copies them.

file(GLOB report_files CONFIGURE_DEPENDS
  ${PROJECT_SOURCE_DIR}/share/Reports/*.rpt ${PROJECT_SOURCE_DIR}/share/Reports/*.rcpt)
set(report_folder ${PROJECT_BINARY_DIR}/bin/share/Reports)
set(report_stamp ${PROJECT_BINARY_DIR}/reports.stamp)
add_custom_command(OUTPUT ${report_stamp}
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${report_folder}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${report_folder}
  COMMAND ${CMAKE_COMMAND} -E copy ${report_files} ${report_folder}
  COMMAND ${CMAKE_COMMAND} -E touch ${report_stamp}
  DEPENDS ${report_files}
  COMMENT "Copying the report files" VERBATIM)
add_custom_target(vestrel_reports ALL DEPENDS ${report_stamp})
