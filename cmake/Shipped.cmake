# Puts the shipped report files and letter templates beside the programs, from where the first start
# copies them.

set(shipped_stamps)
foreach(kind Reports Templates)
  file(GLOB files CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/share/${kind}/*.*)
  set(folder ${PROJECT_BINARY_DIR}/bin/share/${kind})
  set(stamp ${PROJECT_BINARY_DIR}/${kind}.stamp)
  add_custom_command(OUTPUT ${stamp}
    COMMAND ${CMAKE_COMMAND} -E rm -rf ${folder}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
    COMMAND ${CMAKE_COMMAND} -E copy ${files} ${folder}
    COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
    DEPENDS ${files}
    COMMENT "Copying share/${kind}" VERBATIM)
  list(APPEND shipped_stamps ${stamp})
endforeach()
add_custom_target(vestrel_shipped ALL DEPENDS ${shipped_stamps})
