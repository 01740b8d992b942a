# Every program counts which of its lines it runs, and adds to the counts of the runs before. tests/coverage reads them.
if(LS_COVERAGE)
  add_compile_options(--coverage -fprofile-update=atomic)
  add_link_options(--coverage)
endif()
