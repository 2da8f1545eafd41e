# What every file of ours is compiled with: the language, the warnings, the sanitizers.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(VESTREL_CCACHE ccache)
if(VESTREL_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${VESTREL_CCACHE})
endif()

add_library(vestrel_warnings INTERFACE)
target_compile_options(vestrel_warnings INTERFACE
  -Wall -Wextra -Wconversion -Wsign-conversion -Wshadow -Wnon-virtual-dtor -Wold-style-cast
  -Woverloaded-virtual -Wdouble-promotion -Wformat=2 -Wimplicit-fallthrough
  -Wextra-semi -Wno-restrict -Werror)

add_library(vestrel_sanitizers INTERFACE)
if(VESTREL_SANITIZE)
  target_compile_options(vestrel_sanitizers INTERFACE
    -fsanitize=${VESTREL_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(vestrel_sanitizers INTERFACE -fsanitize=${VESTREL_SANITIZE})
endif()
