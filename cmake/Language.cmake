# What every file of ours is compiled with: the language, the warnings, the sanitizers.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# Clones at other places, and other presets with the same flags, share what was compiled; the
# looseness is what ccache wants for precompiled headers.
find_program(VESTREL_CCACHE ccache)
if(VESTREL_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1
    CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
    ${VESTREL_CCACHE})
endif()

# The faster linker, where it is installed.
find_program(VESTREL_MOLD mold)
if(VESTREL_MOLD)
  add_link_options(-fuse-ld=mold)
endif()

# A warning that only a newer compiler gives must not keep a user from building the release.
option(VESTREL_WERROR "Stop at warnings" ON)
add_library(vestrel_warnings INTERFACE)
target_compile_options(vestrel_warnings INTERFACE
  -Wall -Wextra -Wconversion -Wsign-conversion -Wshadow -Wnon-virtual-dtor -Wold-style-cast
  -Woverloaded-virtual -Wdouble-promotion -Wformat=2 -Wimplicit-fallthrough
  -Wextra-semi -Wno-restrict -Wno-array-bounds)
if(VESTREL_WERROR)
  target_compile_options(vestrel_warnings INTERFACE -Werror)
endif()

add_library(vestrel_sanitizers INTERFACE)
if(VESTREL_SANITIZE)
  target_compile_options(vestrel_sanitizers INTERFACE
    -fsanitize=${VESTREL_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(vestrel_sanitizers INTERFACE -fsanitize=${VESTREL_SANITIZE})
endif()
