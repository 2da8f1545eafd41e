# Compiles share/help into one file in the share folder beside the programs. A page is an HTML file with a title and,
# in a meta element "keywords", the words of its index; contents.txt puts the pages in order.

set(help_source ${PROJECT_SOURCE_DIR}/share/help)
set(help_project ${PROJECT_BINARY_DIR}/help/Vestrel.qhp)
set(help_file ${PROJECT_BINARY_DIR}/bin/share/help/Vestrel.qch)
file(GLOB help_pages CONFIGURE_DEPENDS ${help_source}/*.html ${help_source}/*.css)

find_program(VESTREL_QHELPGENERATOR qhelpgenerator REQUIRED
  HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_LIBEXECS} /usr/lib/qt6/libexec)

add_custom_command(OUTPUT ${help_file}
  COMMAND ${CMAKE_COMMAND} -D SOURCE=${help_source} -D PROJECT=${help_project}
          -P ${PROJECT_SOURCE_DIR}/cmake/HelpProject.cmake
  COMMAND ${CMAKE_COMMAND} -E make_directory ${PROJECT_BINARY_DIR}/bin/share/help
  COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen
          ${VESTREL_QHELPGENERATOR} -s ${help_project} -o ${help_file}
  DEPENDS ${help_pages} ${help_source}/contents.txt ${PROJECT_SOURCE_DIR}/cmake/HelpProject.cmake
  COMMENT "Compiling the help" VERBATIM)
add_custom_target(vestrel_help ALL DEPENDS ${help_file})
