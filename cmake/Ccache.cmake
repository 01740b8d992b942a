# With ccache a second build of the same sources takes seconds. The base folder lets clones share one cache.
# The checks of sizes and times keep ccache's safe defaults.
#
# Compiled headers are cached too; their contents are part of every key. For them ccache requires that two of its
# checks are off. The first one guards against sources that define a macro which a compiled header mentions; no
# source here does so. The second one guards against __TIME__, which nothing here uses.
find_program(LS_CCACHE ccache)
if(LS_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1
      CCACHE_SLOPPINESS=pch_defines,time_macros ${LS_CCACHE})
  if(LS_PRECOMPILE AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-fpch-preprocess>)
  elseif(LS_PRECOMPILE AND CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    # A timestamp in a compiled header would differ in every build. ninja rebuilds it when a header changes.
    add_compile_options("$<$<COMPILE_LANGUAGE:CXX>:SHELL:-Xclang -fno-pch-timestamp>")
  endif()
endif()
