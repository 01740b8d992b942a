# A second build of the same sources costs seconds where ccache is installed. Without a base folder every
# clone would have a cache of its own; sizes and mtimes are left at ccache's safe defaults.
#
# Compiled headers are cached too. ccache asks for two of its checks to be given up for that: of names that are defined after such
# a header (no source changes one that a header of LS_PRECOMPILE mentions) and of __TIME__ (nothing here uses it). The contents
# of the compiled headers are part of every key.
find_program(LS_CCACHE ccache)
if(LS_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1
      CCACHE_SLOPPINESS=pch_defines,time_macros ${LS_CCACHE})
  if(LS_PRECOMPILE AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-fpch-preprocess>)
  elseif(LS_PRECOMPILE AND CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    # The time of a header in the compiled ones would make every build's different; the contents are compared by ninja.
    add_compile_options("$<$<COMPILE_LANGUAGE:CXX>:SHELL:-Xclang -fno-pch-timestamp>")
  endif()
endif()
