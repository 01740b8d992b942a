# GTest::gtest and GTest::gtest_main: the installed ones for this system. For another system they are built
# from the sources in Debian's package googletest.
if(NOT CMAKE_CROSSCOMPILING)
  find_package(GTest REQUIRED)
  return()
endif()

set(LS_GOOGLETEST /usr/src/googletest/googletest CACHE PATH "Sources of the test framework, for cross builds")
enable_language(C)
add_subdirectory(${LS_GOOGLETEST} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
