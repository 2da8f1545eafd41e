# A room is one folder below src. Its logic is one static library named after the folder; the link
# line says which rooms it may use.

# vestrel_room(<target> [USES <target>...] [LIBRARIES <imported>...])
function(vestrel_room target)
  cmake_parse_arguments(ROOM "" "" "USES;LIBRARIES" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  add_library(${target} STATIC ${sources})
  target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${target}
    PUBLIC ${ROOM_USES} ${ROOM_LIBRARIES}
    PRIVATE vestrel_warnings vestrel_sanitizers)
  set_target_properties(${target} PROPERTIES LINKER_LANGUAGE CXX)
  vestrel_precompiled(${target} pch_logic)
endfunction()

# vestrel_test(<target> [USES <target>...]): one test program of the files of this folder.
function(vestrel_test target)
  cmake_parse_arguments(TEST "" "" "USES" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  add_executable(${target} ${sources})
  target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_compile_definitions(${target} PRIVATE
    VESTREL_TEST_DATA="${CMAKE_CURRENT_SOURCE_DIR}")
  target_link_libraries(${target} PRIVATE
    ${TEST_USES} GTest::gtest GTest::gmock GTest::gtest_main vestrel_warnings vestrel_sanitizers)
  vestrel_precompiled(${target} pch_tests)
  add_test(NAME ${target} COMMAND ${target})
endfunction()

# vestrel_screens(<target> [USES <target>...] [LIBRARIES <imported>...]): the forms of this folder,
# with what Qt generates for them: these targets alone see Qt.
function(vestrel_screens target)
  cmake_parse_arguments(ROOM "" "" "USES;LIBRARIES" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h *.ui *.qrc)
  add_library(${target} STATIC ${sources})
  set_target_properties(${target} PROPERTIES
    AUTOMOC ON AUTOUIC ON AUTORCC ON LINKER_LANGUAGE CXX)
  target_compile_definitions(${target} PUBLIC QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII)
  target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${target}
    PUBLIC ${ROOM_USES} ${ROOM_LIBRARIES} Qt6::Widgets
    PRIVATE vestrel_warnings vestrel_sanitizers)
  vestrel_precompiled(${target} pch_screens)
endfunction()

# vestrel_screen_test(<target> [USES <target>...]): a test program of this folder that drives real
# widgets, without a display.
function(vestrel_screen_test target)
  cmake_parse_arguments(TEST "" "" "USES" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  add_executable(${target} ${sources})
  set_target_properties(${target} PROPERTIES AUTOMOC ON)
  target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_link_libraries(${target} PRIVATE
    ${TEST_USES} screen_test_support GTest::gtest GTest::gmock vestrel_warnings vestrel_sanitizers)
  vestrel_precompiled(${target} pch_screen_tests)
  add_test(NAME ${target} COMMAND ${target})
endfunction()
