# What nearly every file includes is compiled once: a header for the logic, one for the screens, and
# the same two with the test framework. A file still includes what it uses.
option(VESTREL_PRECOMPILE "Compile the common headers once" ON)

set(vestrel_pch_logic
  <algorithm> <array> <chrono> <charconv> <cmath> <compare> <cstddef> <cstdint> <exception>
  <filesystem> <functional> <initializer_list> <limits> <map> <memory> <optional> <ranges> <span>
  <stdexcept> <string> <string_view> <system_error> <unordered_map> <utility> <variant> <vector>
  <fmt/core.h>)
set(vestrel_pch_screens
  <QAbstractTableModel> <QAction> <QApplication> <QCheckBox> <QComboBox> <QDialog> <QEvent>
  <QHBoxLayout> <QHeaderView> <QKeyEvent> <QLabel> <QLineEdit> <QMenu> <QMenuBar> <QPainter>
  <QPlainTextEdit> <QPushButton> <QScrollArea> <QSettings> <QString> <QStringList> <QTabWidget>
  <QTableView> <QTimer> <QToolButton> <QVariant> <QVBoxLayout> <QWidget>)

# vestrel_pch_target(<name> HEADERS <header>... LIBRARIES <imported>...): the library that compiles
# the headers, which are not part of any program.
function(vestrel_pch_target name)
  cmake_parse_arguments(PCH "" "" "HEADERS;LIBRARIES" ${ARGN})
  set(source ${CMAKE_BINARY_DIR}/pch/${name}.cpp)
  if(NOT EXISTS ${source})
    file(WRITE ${source} "\n")
  endif()
  add_library(${name} OBJECT EXCLUDE_FROM_ALL ${source})
  target_link_libraries(${name} PRIVATE
    ${PCH_LIBRARIES} vestrel_warnings vestrel_sanitizers)
  target_precompile_headers(${name} PRIVATE ${PCH_HEADERS})
endfunction()

if(VESTREL_PRECOMPILE)
  vestrel_pch_target(pch_logic HEADERS ${vestrel_pch_logic} LIBRARIES fmt::fmt)
  if(VESTREL_TESTS)
    vestrel_pch_target(pch_tests HEADERS ${vestrel_pch_logic} <gtest/gtest.h> <gmock/gmock.h>
      LIBRARIES fmt::fmt GTest::gtest GTest::gmock)
  endif()
  if(VESTREL_SCREENS)
    vestrel_pch_target(pch_screens HEADERS ${vestrel_pch_logic} ${vestrel_pch_screens}
      LIBRARIES fmt::fmt Qt6::Widgets)
    target_compile_definitions(pch_screens PRIVATE QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII)
    if(VESTREL_TESTS)
      # Without QtTest: linking it defines the folder of each test, which no shared header may know.
      vestrel_pch_target(pch_screen_tests
        HEADERS ${vestrel_pch_logic} ${vestrel_pch_screens} <gtest/gtest.h> <gmock/gmock.h>
        LIBRARIES fmt::fmt Qt6::Widgets GTest::gtest GTest::gmock)
      target_compile_definitions(pch_screen_tests PRIVATE QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII)
    endif()
  endif()
endif()

# vestrel_precompiled(<target> <pch target>)
function(vestrel_precompiled target pch)
  if(VESTREL_PRECOMPILE)
    target_precompile_headers(${target} REUSE_FROM ${pch})
  endif()
endfunction()
