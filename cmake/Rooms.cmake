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
  add_test(NAME ${target} COMMAND ${target})
endfunction()
