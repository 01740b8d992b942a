# A second build of the same sources costs seconds where ccache is installed. Without a base folder every
# clone would have a cache of its own; sizes and mtimes are left at ccache's safe defaults.
find_program(LS_CCACHE ccache)
if(LS_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${LS_CCACHE})
endif()
