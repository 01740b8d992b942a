# Programs of tests are linked often and are large under the sanitizers. lld does it in a fraction of the time of the usual linker.
# The programs that are installed keep the usual one.
find_program(LS_LLD ld.lld)
if(LS_LLD AND NOT CMAKE_CROSSCOMPILING AND NOT CMAKE_BUILD_TYPE STREQUAL "Release")
  add_link_options(-fuse-ld=lld)
endif()
