# Says what `cmake --install` puts where: the programs together below lib, since they look for one
# another in their own folder; the commands in bin; what they read in share/vestrel.
include(GNUInstallDirs)
set(program_folder lib/vestrel)
set(shared_folder ${CMAKE_INSTALL_DATADIR}/vestrel)

# The programs, each with the name of its manual page. One that this build leaves out is skipped.
set(vestrel_programs
  kestrom=vestrel vestrelctl=vestrelctl dbmender.exe=dbmender PhotoReel.exe=PhotoReel
  SumDesk.exe=SumDesk)
set(see_also "vestrel(1), vestrelctl(1), dbmender(1)")

set(pages)
foreach(entry IN LISTS vestrel_programs)
  string(REGEX MATCH "^(.+)=(.+)$" matched ${entry})
  set(program ${CMAKE_MATCH_1})
  set(name ${CMAKE_MATCH_2})
  if(NOT TARGET ${program})
    continue()
  endif()
  install(TARGETS ${program} RUNTIME DESTINATION ${program_folder})
  set(page ${PROJECT_BINARY_DIR}/man/${name}.1)
  string(REGEX REPLACE "(, )?${name}\\(1\\)" "" others "${see_also}")
  string(REGEX REPLACE "^, " "" others "${others}")
  add_custom_command(OUTPUT ${page}
    COMMAND ${PROJECT_SOURCE_DIR}/scripts/package/man-page.sh
            $<TARGET_FILE:${program}> ${name} "${others}" > ${page}
    DEPENDS ${program} ${PROJECT_SOURCE_DIR}/scripts/package/man-page.sh
            ${PROJECT_SOURCE_DIR}/scripts/package/man-page.awk
    COMMENT "Writing the manual page of ${name}" VERBATIM)
  list(APPEND pages ${page})
endforeach()
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/man)
add_custom_target(vestrel_pages ALL DEPENDS ${pages})
install(FILES ${pages} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

# The commands: vestrelctl is found in its folder through the link, whose target is relative.
file(CREATE_LINK ../${program_folder}/vestrelctl ${PROJECT_BINARY_DIR}/vestrelctl.link SYMBOLIC)
install(FILES ${PROJECT_BINARY_DIR}/vestrelctl.link DESTINATION ${CMAKE_INSTALL_BINDIR}
  RENAME vestrelctl)
install(FILES ${PROJECT_SOURCE_DIR}/share/completion/vestrelctl
  DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/share/Reports ${PROJECT_SOURCE_DIR}/share/Templates
  DESTINATION ${shared_folder} FILES_MATCHING PATTERN "*.*")

if(VESTREL_SCREENS)
  set(desktop_files ${PROJECT_SOURCE_DIR}/share/desktop)
  set(icon ${PROJECT_SOURCE_DIR}/share/icons/vestrel.svg)
  install(PROGRAMS ${desktop_files}/vestrel DESTINATION ${CMAKE_INSTALL_BINDIR})
  install(FILES ${PROJECT_SOURCE_DIR}/share/completion/vestrel
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
  install(FILES ${PROJECT_BINARY_DIR}/bin/share/help/Vestrel.qch DESTINATION ${shared_folder}/help)
  install(FILES ${desktop_files}/vestrel.desktop
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES ${desktop_files}/example.vestrel.Vestrel.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
  install(FILES ${desktop_files}/vestrel-mime.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME vestrel.xml)

  set(icon_theme ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
  install(FILES ${icon} DESTINATION ${icon_theme}/scalable/apps)
  find_program(VESTREL_RSVG_CONVERT rsvg-convert REQUIRED)
  set(pictures)
  foreach(size 16 22 24 32 48 64 128 256 512)
    set(picture ${PROJECT_BINARY_DIR}/icons/${size}/vestrel.png)
    add_custom_command(OUTPUT ${picture}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${PROJECT_BINARY_DIR}/icons/${size}
      COMMAND ${VESTREL_RSVG_CONVERT} -w ${size} -h ${size} ${icon} -o ${picture}
      DEPENDS ${icon}
      COMMENT "Drawing the icon in size ${size}" VERBATIM)
    list(APPEND pictures ${picture})
    install(FILES ${picture} DESTINATION ${icon_theme}/${size}x${size}/apps)
  endforeach()
  add_custom_target(vestrel_icons ALL DEPENDS ${pictures})
endif()
